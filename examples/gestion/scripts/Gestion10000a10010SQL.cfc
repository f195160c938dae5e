ALTER TABLE [Clientes] ADD [Correo] nvarchar(80) NULL
GO

ALTER TABLE [Clientes] ADD [Inactivo] bit DEFAULT 0 NOT NULL
GO

ALTER TABLE [Artículos] ADD [IVA] decimal(4, 1) DEFAULT 21 NOT NULL
GO

UPDATE [Clientes] SET [Inactivo] = 1 WHERE [Código] NOT IN (SELECT [Cliente] FROM [Pedidos])
GO

UPDATE [Artículos] SET [IVA] = 10 WHERE [Familia] = N'SEÑ'
GO

UPDATE [Esquema] SET [Versión] = 10010, [Fecha] = '20240301' WHERE [Versión] = 10000
GO
