ALTER TABLE [Clientes] ADD COLUMN [Correo] TEXT
GO

ALTER TABLE [Clientes] ADD COLUMN [Inactivo] INTEGER NOT NULL DEFAULT 0
GO

ALTER TABLE [Artículos] ADD COLUMN [IVA] NUMERIC NOT NULL DEFAULT 21
GO

UPDATE [Clientes] SET [Inactivo] = 1 WHERE [Código] NOT IN (SELECT [Cliente] FROM [Pedidos])
GO

UPDATE [Artículos] SET [IVA] = 10 WHERE [Familia] = 'SEÑ'
GO

UPDATE [Esquema] SET [Versión] = 10010, [Fecha] = '2024-03-01' WHERE [Versión] = 10000
GO
