-- AS va solo en su línea, y FOR solo en la anterior: lo pide el cifrado de la instalación.
CREATE VIEW [ImportePorCliente]
AS
SELECT C.[Código], C.[Nombre], Sum(L.[Cantidad] * L.[Precio]) AS [Importe]
FROM [Clientes] C INNER JOIN [Pedidos] P ON P.[Cliente] = C.[Código]
INNER JOIN [Líneas] L ON L.[Pedido] = P.[Número]
GROUP BY C.[Código], C.[Nombre]
GO

CREATE FUNCTION [ImporteDePedido] (@Pedido int)
RETURNS money
AS
BEGIN
  RETURN (SELECT IsNull(Sum([Cantidad] * [Precio]), 0) FROM [Líneas] WHERE [Pedido] = @Pedido)
END
GO

CREATE PROCEDURE [AltaPedido]
  @Cliente int, @Fecha datetime, @Portes money, @Número int OUTPUT
AS
SET NOCOUNT ON
SELECT @Número = IsNull(Max([Número]), 24000) + 1 FROM [Pedidos] WITH (UPDLOCK, HOLDLOCK)
INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes]) VALUES (@Número, @Cliente, @Fecha, @Portes)
RETURN 0
GO

CREATE PROCEDURE [PedidosDeCliente] @Cliente int
AS
SET NOCOUNT ON
SELECT [Número], [Fecha], [Portes], [dbo].[ImporteDePedido]([Número]) AS [Importe]
FROM [Pedidos] WHERE [Cliente] = @Cliente ORDER BY [Fecha]
GO

CREATE TRIGGER [LíneasExistencias] ON [Líneas]
FOR INSERT, UPDATE, DELETE
AS
SET NOCOUNT ON
UPDATE A SET [Existencias] = A.[Existencias] + D.[Cantidad]
FROM [Artículos] A INNER JOIN (
  SELECT [Artículo], Sum([Cantidad]) AS [Cantidad] FROM deleted GROUP BY [Artículo]) D ON D.[Artículo] = A.[Código]
UPDATE A SET [Existencias] = A.[Existencias] - I.[Cantidad]
FROM [Artículos] A INNER JOIN (
  SELECT [Artículo], Sum([Cantidad]) AS [Cantidad] FROM inserted GROUP BY [Artículo]) I ON I.[Artículo] = A.[Código]
GO

CREATE TRIGGER [ClientesConPedidos] ON [Clientes]
FOR DELETE
AS
IF EXISTS (SELECT * FROM [Pedidos] P INNER JOIN deleted D ON D.[Código] = P.[Cliente])
BEGIN
  RAISERROR (N'El cliente tiene pedidos.', 16, 1)
  ROLLBACK TRANSACTION
END
GO

CREATE TRIGGER [PedidosFecha] ON [Pedidos]
FOR INSERT
AS
IF EXISTS (SELECT * FROM inserted WHERE [Fecha] > DateAdd(day, 1, GetDate()))
BEGIN
  RAISERROR (N'La fecha del pedido es futura.', 16, 1)
  ROLLBACK TRANSACTION
END
GO

CREATE TRIGGER [ArtículosPrecio] ON [Artículos]
FOR UPDATE
AS
IF EXISTS (SELECT * FROM inserted WHERE [Precio] < 0)
BEGIN
  RAISERROR (N'El precio es negativo.', 16, 1)
  ROLLBACK TRANSACTION
END
GO

GRANT SELECT ON [ImportePorCliente] TO [GestionVentas]
GO

GRANT EXECUTE ON [AltaPedido] TO [GestionVentas]
GO

GRANT EXECUTE ON [PedidosDeCliente] TO [GestionVentas]
GO
