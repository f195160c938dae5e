CREATE TABLE [FormasPago] (
  [Código] TEXT PRIMARY KEY, [Descripción] TEXT NOT NULL, [Plazo] INTEGER NOT NULL)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES ('CON', 'Contado', 0)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES ('R30', 'Recibo a 30 días', 30)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES ('R60', 'Recibo a 60 días', 60)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES ('TRA', 'Transferencia bancaria', 15)
GO

ALTER TABLE [Pedidos] ADD COLUMN [FormaPago] TEXT REFERENCES [FormasPago]
GO

UPDATE [Pedidos] SET [FormaPago] = CASE WHEN [Portes] = 0 THEN 'R30' ELSE 'CON' END
GO

UPDATE [Esquema] SET [Versión] = 10020, [Fecha] = '2024-05-15' WHERE [Versión] = 10010
GO
