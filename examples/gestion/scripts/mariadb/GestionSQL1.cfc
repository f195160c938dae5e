CREATE TABLE Esquema (
  Versión int NOT NULL, Fecha date NOT NULL)
GO

CREATE TABLE Funciones (
  Código varchar(3) NOT NULL, Descripción varchar(50) NOT NULL,
  PRIMARY KEY (Código))
GO

CREATE TABLE Usuarios (
  Nombre varchar(30) NOT NULL, Descripción varchar(80) NOT NULL,
  PRIMARY KEY (Nombre))
GO

CREATE TABLE FuncionesDeUsuario (
  Usuario varchar(30) NOT NULL, Función varchar(3) NOT NULL,
  PRIMARY KEY (Usuario, Función),
  CONSTRAINT FuncionesUsuario FOREIGN KEY (Usuario) REFERENCES Usuarios (Nombre),
  CONSTRAINT FuncionesFunción FOREIGN KEY (Función) REFERENCES Funciones (Código))
GO

CREATE TABLE Provincias (
  Código int NOT NULL, Nombre varchar(40) NOT NULL,
  PRIMARY KEY (Código))
GO

CREATE TABLE Clientes (
  Código int NOT NULL, Nombre varchar(60) NOT NULL, Población varchar(40) NOT NULL,
  Provincia int NOT NULL, Teléfono varchar(20), Alta date NOT NULL,
  PRIMARY KEY (Código),
  CONSTRAINT ClientesProvincia FOREIGN KEY (Provincia) REFERENCES Provincias (Código))
GO

CREATE TABLE Familias (
  Código varchar(3) NOT NULL, Descripción varchar(50) NOT NULL,
  PRIMARY KEY (Código))
GO

CREATE TABLE Artículos (
  Código varchar(10) NOT NULL, Descripción varchar(80) NOT NULL, Familia varchar(3) NOT NULL,
  Precio decimal(12, 2) NOT NULL, Existencias int NOT NULL,
  PRIMARY KEY (Código),
  CONSTRAINT ArtículosFamilia FOREIGN KEY (Familia) REFERENCES Familias (Código))
GO

CREATE TABLE Pedidos (
  Número int NOT NULL, Cliente int NOT NULL, Fecha date NOT NULL, Portes decimal(12, 2) NOT NULL,
  Observación varchar(1000),
  PRIMARY KEY (Número),
  CONSTRAINT PedidosCliente FOREIGN KEY (Cliente) REFERENCES Clientes (Código))
GO

CREATE TABLE Líneas (
  Pedido int NOT NULL, Línea int NOT NULL, Artículo varchar(10) NOT NULL, Cantidad int NOT NULL,
  Precio decimal(12, 2) NOT NULL,
  PRIMARY KEY (Pedido, Línea),
  CONSTRAINT LíneasPedido FOREIGN KEY (Pedido) REFERENCES Pedidos (Número),
  CONSTRAINT LíneasArtículo FOREIGN KEY (Artículo) REFERENCES Artículos (Código))
GO

CREATE INDEX PedidosPorCliente ON Pedidos (Cliente, Fecha)
GO

CREATE INDEX LíneasPorArtículo ON Líneas (Artículo)
GO

CREATE VIEW ImportePorCliente AS
SELECT C.Código, C.Nombre, Sum(L.Cantidad * L.Precio) AS Importe
FROM Clientes C INNER JOIN Pedidos P ON P.Cliente = C.Código
INNER JOIN Líneas L ON L.Pedido = P.Número
GROUP BY C.Código, C.Nombre
GO
