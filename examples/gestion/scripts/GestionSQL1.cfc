IF NOT EXISTS (SELECT * FROM sys.server_principals WHERE name = N'[UsuarioQVRAdm]')
  CREATE LOGIN "[UsuarioQVRAdm]" WITH PASSWORD = N'[ClaveUsuarioQVRAdm]', DEFAULT_DATABASE = "[NombreBD]"
GO

IF NOT EXISTS (SELECT * FROM sys.server_principals WHERE name = N'[UsuarioQVRCli]')
  CREATE LOGIN "[UsuarioQVRCli]" WITH PASSWORD = N'[ClaveUsuarioQVRCli]', DEFAULT_DATABASE = "[NombreBD]"
GO

USE "[NombreBD]"
GO

IF NOT EXISTS (SELECT * FROM sys.database_principals WHERE name = N'[UsuarioQVRAdm]')
  CREATE USER "[UsuarioQVRAdm]" FOR LOGIN "[UsuarioQVRAdm]"
GO

IF NOT EXISTS (SELECT * FROM sys.database_principals WHERE name = N'[UsuarioQVRCli]')
  CREATE USER "[UsuarioQVRCli]" FOR LOGIN "[UsuarioQVRCli]"
GO

CREATE ROLE [GestionVentas]
GO

ALTER ROLE [db_owner] ADD MEMBER "[UsuarioQVRAdm]"
GO

ALTER ROLE [GestionVentas] ADD MEMBER "[UsuarioQVRCli]"
GO

CREATE TABLE [Esquema] (
  [Versión] int NOT NULL, [Fecha] datetime NOT NULL)
GO

CREATE TABLE [Funciones] (
  [Código] nvarchar(3) NOT NULL CONSTRAINT [ClaveFunciones] PRIMARY KEY,
  [Descripción] nvarchar(50) NOT NULL)
GO

CREATE TABLE [Usuarios] (
  [Nombre] nvarchar(30) NOT NULL CONSTRAINT [ClaveUsuarios] PRIMARY KEY,
  [Descripción] nvarchar(80) NOT NULL)
GO

CREATE TABLE [FuncionesDeUsuario] (
  [Usuario] nvarchar(30) NOT NULL CONSTRAINT [FuncionesUsuario] REFERENCES [Usuarios] ([Nombre]),
  [Función] nvarchar(3) NOT NULL CONSTRAINT [FuncionesFunción] REFERENCES [Funciones] ([Código]),
  CONSTRAINT [ClaveFuncionesDeUsuario] PRIMARY KEY ([Usuario], [Función]))
GO

CREATE TABLE [Provincias] (
  [Código] int NOT NULL CONSTRAINT [ClaveProvincias] PRIMARY KEY,
  [Nombre] nvarchar(40) NOT NULL)
GO

CREATE TABLE [Clientes] (
  [Código] int NOT NULL CONSTRAINT [ClaveClientes] PRIMARY KEY,
  [Nombre] nvarchar(60) NOT NULL,
  [Población] nvarchar(40) NOT NULL,
  [Provincia] int NOT NULL CONSTRAINT [ClientesProvincia] REFERENCES [Provincias] ([Código]),
  [Teléfono] nvarchar(20) NULL,
  [Alta] datetime NOT NULL)
GO

CREATE TABLE [Familias] (
  [Código] nvarchar(3) NOT NULL CONSTRAINT [ClaveFamilias] PRIMARY KEY,
  [Descripción] nvarchar(50) NOT NULL)
GO

CREATE TABLE [Artículos] (
  [Código] nvarchar(10) NOT NULL CONSTRAINT [ClaveArtículos] PRIMARY KEY,
  [Descripción] nvarchar(80) NOT NULL,
  [Familia] nvarchar(3) NOT NULL CONSTRAINT [ArtículosFamilia] REFERENCES [Familias] ([Código]),
  [Precio] money NOT NULL,
  [Existencias] int NOT NULL)
GO

CREATE TABLE [Pedidos] (
  [Número] int NOT NULL CONSTRAINT [ClavePedidos] PRIMARY KEY,
  [Cliente] int NOT NULL CONSTRAINT [PedidosCliente] REFERENCES [Clientes] ([Código]),
  [Fecha] datetime NOT NULL,
  [Portes] money NOT NULL,
  [Observación] nvarchar(1000) NULL)
GO

CREATE TABLE [Líneas] (
  [Pedido] int NOT NULL CONSTRAINT [LíneasPedido] REFERENCES [Pedidos] ([Número]),
  [Línea] int NOT NULL,
  [Artículo] nvarchar(10) NOT NULL CONSTRAINT [LíneasArtículo] REFERENCES [Artículos] ([Código]),
  [Cantidad] int NOT NULL,
  [Precio] money NOT NULL,
  CONSTRAINT [ClaveLíneas] PRIMARY KEY ([Pedido], [Línea]))
GO

CREATE INDEX [PedidosPorCliente] ON [Pedidos] ([Cliente], [Fecha])
GO

CREATE INDEX [LíneasPorArtículo] ON [Líneas] ([Artículo])
GO

GRANT SELECT, INSERT, UPDATE ON [Clientes] TO [GestionVentas]
GO

GRANT SELECT, INSERT, UPDATE ON [Pedidos] TO [GestionVentas]
GO

GRANT SELECT, INSERT, UPDATE, DELETE ON [Líneas] TO [GestionVentas]
GO

GRANT SELECT ON [Artículos] TO [GestionVentas]
GO

GRANT SELECT ON [Familias] TO [GestionVentas]
GO

GRANT SELECT ON [Provincias] TO [GestionVentas]
GO

GRANT SELECT ON [Esquema] TO [GestionVentas]
GO
