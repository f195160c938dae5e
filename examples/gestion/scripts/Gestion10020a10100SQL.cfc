ALTER TABLE [Pedidos] ADD [Importe] money DEFAULT 0 NOT NULL
GO

UPDATE [Pedidos] SET [Importe] = [dbo].[ImporteDePedido]([Número])
GO

ALTER VIEW [ImportePorCliente]
AS
SELECT C.[Código], C.[Nombre], Sum(P.[Importe] + P.[Portes]) AS [Importe]
FROM [Clientes] C INNER JOIN [Pedidos] P ON P.[Cliente] = C.[Código]
WHERE C.[Inactivo] = 0
GROUP BY C.[Código], C.[Nombre]
GO

CREATE TRIGGER [LíneasImporte] ON [Líneas]
FOR INSERT, UPDATE, DELETE
AS
SET NOCOUNT ON
UPDATE [Pedidos] SET [Importe] = [dbo].[ImporteDePedido]([Número])
WHERE [Número] IN (SELECT [Pedido] FROM inserted UNION SELECT [Pedido] FROM deleted)
GO

CREATE INDEX [PedidosPorFormaPago] ON [Pedidos] ([FormaPago])
GO

UPDATE [Esquema] SET [Versión] = 10100, [Fecha] = '20240701' WHERE [Versión] = 10020
GO
