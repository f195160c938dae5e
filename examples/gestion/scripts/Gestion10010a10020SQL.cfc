CREATE TABLE [FormasPago] (
  [Código] nvarchar(3) NOT NULL CONSTRAINT [ClaveFormasPago] PRIMARY KEY,
  [Descripción] nvarchar(50) NOT NULL,
  [Plazo] int NOT NULL)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES (N'CON', N'Contado', 0)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES (N'R30', N'Recibo a 30 días', 30)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES (N'R60', N'Recibo a 60 días', 60)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES (N'TRA', N'Transferencia bancaria', 15)
GO

ALTER TABLE [Pedidos] ADD [FormaPago] nvarchar(3) NULL
  CONSTRAINT [PedidosFormaPago] REFERENCES [FormasPago] ([Código])
GO

UPDATE [Pedidos] SET [FormaPago] = CASE WHEN [Portes] = 0 THEN N'R30' ELSE N'CON' END
GO

ALTER PROCEDURE [AltaPedido]
  @Cliente int, @Fecha datetime, @Portes money, @Número int OUTPUT, @FormaPago nvarchar(3) = N'CON'
AS
SET NOCOUNT ON
SELECT @Número = IsNull(Max([Número]), 24000) + 1 FROM [Pedidos] WITH (UPDLOCK, HOLDLOCK)
INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [FormaPago])
VALUES (@Número, @Cliente, @Fecha, @Portes, @FormaPago)
RETURN 0
GO

GRANT SELECT ON [FormasPago] TO [GestionVentas]
GO

UPDATE [Esquema] SET [Versión] = 10020, [Fecha] = '20240515' WHERE [Versión] = 10010
GO
