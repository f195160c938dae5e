ALTER TABLE [Pedidos] ADD COLUMN [Importe] CURRENCY
GO

SELECT [Pedido], Sum([Cantidad] * [Precio]) AS [Suma] INTO [SumasDePedido] FROM [Líneas] GROUP BY [Pedido]
GO

UPDATE [Pedidos] SET [Importe] = 0
GO

UPDATE [Pedidos] INNER JOIN [SumasDePedido] ON [Pedidos].[Número] = [SumasDePedido].[Pedido]
SET [Pedidos].[Importe] = [SumasDePedido].[Suma]
GO

DROP TABLE [SumasDePedido]
GO

DROP VIEW [ImportePorCliente]
GO

CREATE VIEW [ImportePorCliente] AS
SELECT C.[Código], C.[Nombre], Sum(P.[Importe] + P.[Portes]) AS [Total]
FROM [Clientes] AS C INNER JOIN [Pedidos] AS P ON P.[Cliente] = C.[Código]
WHERE C.[Inactivo] = False
GROUP BY C.[Código], C.[Nombre]
GO

UPDATE [Esquema] SET [Versión] = 10100, [Fecha] = #2024-07-01# WHERE [Versión] = 10020
GO
