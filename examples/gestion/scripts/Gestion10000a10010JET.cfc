ALTER TABLE [Clientes] ADD COLUMN [Correo] TEXT(80)
GO

ALTER TABLE [Clientes] ADD COLUMN [Inactivo] YESNO
GO

ALTER TABLE [Artículos] ADD COLUMN [IVA] DOUBLE
GO

UPDATE [Clientes] SET [Inactivo] = True WHERE [Código] NOT IN (SELECT [Cliente] FROM [Pedidos])
GO

UPDATE [Artículos] SET [IVA] = IIf([Familia] = 'SEÑ', 10, 21)
GO

UPDATE [Esquema] SET [Versión] = 10010, [Fecha] = #2024-03-01# WHERE [Versión] = 10000
GO
