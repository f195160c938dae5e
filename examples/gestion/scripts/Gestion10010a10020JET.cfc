CREATE TABLE [FormasPago] (
  [Código] TEXT(3) CONSTRAINT [ClaveFormasPago] PRIMARY KEY, [Descripción] TEXT(50) NOT NULL, [Plazo] LONG NOT NULL)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES ('CON', 'Contado', 0)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES ('R30', 'Recibo a 30 días', 30)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES ('R60', 'Recibo a 60 días', 60)
GO

INSERT INTO [FormasPago] ([Código], [Descripción], [Plazo]) VALUES ('TRA', 'Transferencia bancaria', 15)
GO

ALTER TABLE [Pedidos] ADD COLUMN [FormaPago] TEXT(3)
GO

ALTER TABLE [Pedidos] ADD CONSTRAINT [PedidosFormaPago] FOREIGN KEY ([FormaPago]) REFERENCES [FormasPago] ([Código])
GO

UPDATE [Pedidos] SET [FormaPago] = IIf([Portes] = 0, 'R30', 'CON')
GO

DROP PROCEDURE [PedidosDeCliente]
GO

CREATE PROCEDURE [PedidosDeCliente] ([pCliente] LONG) AS
SELECT P.[Número], P.[Fecha], P.[Portes], F.[Descripción], P.[Fecha] + F.[Plazo] AS [Vencimiento]
FROM [Pedidos] AS P INNER JOIN [FormasPago] AS F ON F.[Código] = P.[FormaPago]
WHERE P.[Cliente] = [pCliente] ORDER BY P.[Fecha]
GO

UPDATE [Esquema] SET [Versión] = 10020, [Fecha] = #2024-05-15# WHERE [Versión] = 10010
GO
