ALTER TABLE [Pedidos] ADD COLUMN [Importe] NUMERIC NOT NULL DEFAULT 0
GO

UPDATE [Pedidos] SET [Importe] = (
  SELECT Coalesce(Sum(L.[Cantidad] * L.[Precio]), 0) FROM [Líneas] L WHERE L.[Pedido] = [Pedidos].[Número])
GO

DROP VIEW [ImportePorCliente]
GO

CREATE VIEW [ImportePorCliente] AS
SELECT C.[Nombre], Sum(P.[Importe] + P.[Portes]) AS [Importe]
FROM [Clientes] C INNER JOIN [Pedidos] P ON P.[Cliente] = C.[Código]
WHERE C.[Inactivo] = 0
GROUP BY C.[Código], C.[Nombre]
GO

CREATE INDEX [PedidosPorFormaPago] ON [Pedidos] ([FormaPago])
GO

UPDATE [Esquema] SET [Versión] = 10100, [Fecha] = '2024-07-01' WHERE [Versión] = 10020
GO
