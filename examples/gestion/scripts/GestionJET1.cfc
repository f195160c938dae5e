CREATE TABLE [Esquema] (
  [Versión] LONG NOT NULL, [Fecha] DATETIME NOT NULL)
GO

CREATE TABLE [Funciones] (
  [Código] TEXT(3) CONSTRAINT [ClaveFunciones] PRIMARY KEY, [Descripción] TEXT(50) NOT NULL)
GO

CREATE TABLE [Usuarios] (
  [Nombre] TEXT(30) CONSTRAINT [ClaveUsuarios] PRIMARY KEY, [Descripción] TEXT(80) NOT NULL)
GO

CREATE TABLE [FuncionesDeUsuario] (
  [Usuario] TEXT(30) NOT NULL CONSTRAINT [FuncionesUsuario] REFERENCES [Usuarios] ([Nombre]),
  [Función] TEXT(3) NOT NULL CONSTRAINT [FuncionesFunción] REFERENCES [Funciones] ([Código]),
  CONSTRAINT [ClaveFuncionesDeUsuario] PRIMARY KEY ([Usuario], [Función]))
GO

CREATE TABLE [Provincias] (
  [Código] LONG CONSTRAINT [ClaveProvincias] PRIMARY KEY, [Nombre] TEXT(40) NOT NULL)
GO

CREATE TABLE [Clientes] (
  [Código] LONG CONSTRAINT [ClaveClientes] PRIMARY KEY, [Nombre] TEXT(60) NOT NULL, [Población] TEXT(40) NOT NULL,
  [Provincia] LONG NOT NULL CONSTRAINT [ClientesProvincia] REFERENCES [Provincias] ([Código]),
  [Teléfono] TEXT(20), [Alta] DATETIME NOT NULL)
GO

CREATE TABLE [Familias] (
  [Código] TEXT(3) CONSTRAINT [ClaveFamilias] PRIMARY KEY, [Descripción] TEXT(50) NOT NULL)
GO

CREATE TABLE [Artículos] (
  [Código] TEXT(10) CONSTRAINT [ClaveArtículos] PRIMARY KEY, [Descripción] TEXT(80) NOT NULL,
  [Familia] TEXT(3) NOT NULL CONSTRAINT [ArtículosFamilia] REFERENCES [Familias] ([Código]),
  [Precio] CURRENCY NOT NULL, [Existencias] LONG NOT NULL)
GO

CREATE TABLE [Pedidos] (
  [Número] LONG CONSTRAINT [ClavePedidos] PRIMARY KEY,
  [Cliente] LONG NOT NULL CONSTRAINT [PedidosCliente] REFERENCES [Clientes] ([Código]),
  [Fecha] DATETIME NOT NULL, [Portes] CURRENCY NOT NULL, [Observación] MEMO)
GO

CREATE TABLE [Líneas] (
  [Pedido] LONG NOT NULL CONSTRAINT [LíneasPedido] REFERENCES [Pedidos] ([Número]), [Línea] LONG NOT NULL,
  [Artículo] TEXT(10) NOT NULL CONSTRAINT [LíneasArtículo] REFERENCES [Artículos] ([Código]),
  [Cantidad] LONG NOT NULL, [Precio] CURRENCY NOT NULL,
  CONSTRAINT [ClaveLíneas] PRIMARY KEY ([Pedido], [Línea]))
GO

CREATE INDEX [PedidosPorCliente] ON [Pedidos] ([Cliente], [Fecha])
GO

CREATE VIEW [ImportePorCliente] AS
SELECT C.[Código], C.[Nombre], Sum(L.[Cantidad] * L.[Precio]) AS [Importe]
FROM ([Clientes] AS C INNER JOIN [Pedidos] AS P ON P.[Cliente] = C.[Código])
INNER JOIN [Líneas] AS L ON L.[Pedido] = P.[Número]
GROUP BY C.[Código], C.[Nombre]
GO

CREATE PROCEDURE [PedidosDeCliente] ([pCliente] LONG) AS
SELECT [Número], [Fecha], [Portes] FROM [Pedidos] WHERE [Cliente] = [pCliente] ORDER BY [Fecha]
GO

INSERT INTO [Esquema] ([Versión], [Fecha]) VALUES (10000, #2023-12-01#)
GO
