CREATE TABLE [Esquema] (
  [Versión] INTEGER NOT NULL, [Fecha] TEXT NOT NULL)
GO

CREATE TABLE [Funciones] (
  [Código] TEXT PRIMARY KEY, [Descripción] TEXT NOT NULL)
GO

CREATE TABLE [Usuarios] (
  [Nombre] TEXT PRIMARY KEY, [Descripción] TEXT NOT NULL)
GO

CREATE TABLE [FuncionesDeUsuario] (
  [Usuario] TEXT NOT NULL REFERENCES [Usuarios], [Función] TEXT NOT NULL REFERENCES [Funciones],
  PRIMARY KEY ([Usuario], [Función]))
GO

CREATE TABLE [Provincias] (
  [Código] INTEGER PRIMARY KEY, [Nombre] TEXT NOT NULL)
GO

CREATE TABLE [Clientes] (
  [Código] INTEGER PRIMARY KEY, [Nombre] TEXT NOT NULL, [Población] TEXT NOT NULL,
  [Provincia] INTEGER NOT NULL REFERENCES [Provincias], [Teléfono] TEXT, [Alta] TEXT NOT NULL)
GO

CREATE TABLE [Familias] (
  [Código] TEXT PRIMARY KEY, [Descripción] TEXT NOT NULL)
GO

CREATE TABLE [Artículos] (
  [Código] TEXT PRIMARY KEY, [Descripción] TEXT NOT NULL, [Familia] TEXT NOT NULL REFERENCES [Familias],
  [Precio] NUMERIC NOT NULL, [Existencias] INTEGER NOT NULL)
GO

CREATE TABLE [Pedidos] (
  [Número] INTEGER PRIMARY KEY, [Cliente] INTEGER NOT NULL REFERENCES [Clientes],
  [Fecha] TEXT NOT NULL, [Portes] NUMERIC NOT NULL, [Observación] TEXT)
GO

CREATE TABLE [Líneas] (
  [Pedido] INTEGER NOT NULL REFERENCES [Pedidos], [Línea] INTEGER NOT NULL,
  [Artículo] TEXT NOT NULL REFERENCES [Artículos], [Cantidad] INTEGER NOT NULL, [Precio] NUMERIC NOT NULL,
  PRIMARY KEY ([Pedido], [Línea]))
GO

CREATE INDEX [PedidosPorCliente] ON [Pedidos] ([Cliente], [Fecha])
GO

CREATE INDEX [LíneasPorArtículo] ON [Líneas] ([Artículo])
GO

CREATE VIEW [ImportePorCliente] AS
SELECT C.[Nombre], Sum(L.[Cantidad] * L.[Precio]) AS [Importe]
FROM [Clientes] C INNER JOIN [Pedidos] P ON P.[Cliente] = C.[Código]
INNER JOIN [Líneas] L ON L.[Pedido] = P.[Número]
GROUP BY C.[Código], C.[Nombre]
GO

INSERT INTO [Esquema] ([Versión], [Fecha]) VALUES (10000, '2023-12-01')
GO
