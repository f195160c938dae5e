CREATE TABLESPACE "[NombreBD]" DATAFILE '[LogFile].dbf' SIZE 50M AUTOEXTEND ON NEXT 10M
GO

CREATE USER "[UsuarioQVRAdm]" IDENTIFIED BY "[ClaveUsuarioQVRAdm]"
DEFAULT TABLESPACE "[NombreBD]" QUOTA UNLIMITED ON "[NombreBD]"
GO

CREATE USER "[UsuarioQVRCli]" IDENTIFIED BY "[ClaveUsuarioQVRCli]" DEFAULT TABLESPACE "[NombreBD]"
GO

GRANT CREATE SESSION, CREATE TABLE, CREATE VIEW, CREATE SEQUENCE, CREATE PROCEDURE, CREATE TRIGGER
TO "[UsuarioQVRAdm]"
GO

GRANT CREATE SESSION TO "[UsuarioQVRCli]"
GO

ALTER SESSION SET CURRENT_SCHEMA = "[UsuarioQVRAdm]"
GO

CREATE TABLE Esquema (
  Version NUMBER(5) NOT NULL, Fecha DATE NOT NULL)
GO

CREATE TABLE Funciones (
  Codigo VARCHAR2(3) CONSTRAINT ClaveFunciones PRIMARY KEY,
  Descripcion VARCHAR2(50) NOT NULL)
GO

CREATE TABLE Usuarios (
  Nombre VARCHAR2(30) CONSTRAINT ClaveUsuarios PRIMARY KEY,
  Descripcion VARCHAR2(80) NOT NULL)
GO

CREATE TABLE FuncionesDeUsuario (
  Usuario VARCHAR2(30) NOT NULL CONSTRAINT FuncionesUsuario REFERENCES Usuarios (Nombre),
  Funcion VARCHAR2(3) NOT NULL CONSTRAINT FuncionesFuncion REFERENCES Funciones (Codigo),
  CONSTRAINT ClaveFuncionesDeUsuario PRIMARY KEY (Usuario, Funcion))
GO

CREATE TABLE Provincias (
  Codigo NUMBER(5) CONSTRAINT ClaveProvincias PRIMARY KEY,
  Nombre VARCHAR2(40) NOT NULL)
GO

CREATE TABLE Clientes (
  Codigo NUMBER(9) CONSTRAINT ClaveClientes PRIMARY KEY,
  Nombre VARCHAR2(60) NOT NULL,
  Poblacion VARCHAR2(40) NOT NULL,
  Provincia NUMBER(5) NOT NULL CONSTRAINT ClientesProvincia REFERENCES Provincias (Codigo),
  Telefono VARCHAR2(20),
  Alta DATE NOT NULL)
GO

CREATE TABLE Familias (
  Codigo VARCHAR2(6) CONSTRAINT ClaveFamilias PRIMARY KEY,
  Descripcion VARCHAR2(50) NOT NULL)
GO

CREATE TABLE Articulos (
  Codigo VARCHAR2(20) CONSTRAINT ClaveArticulos PRIMARY KEY,
  Descripcion VARCHAR2(80) NOT NULL,
  Familia VARCHAR2(6) NOT NULL CONSTRAINT ArticulosFamilia REFERENCES Familias (Codigo),
  Precio NUMBER(11, 2) NOT NULL,
  Existencias NUMBER(9) NOT NULL)
GO

CREATE TABLE Pedidos (
  Numero NUMBER(9) CONSTRAINT ClavePedidos PRIMARY KEY,
  Cliente NUMBER(9) NOT NULL CONSTRAINT PedidosCliente REFERENCES Clientes (Codigo),
  Fecha DATE NOT NULL,
  Portes NUMBER(11, 2) NOT NULL,
  Observacion VARCHAR2(1000))
GO

CREATE TABLE Lineas (
  Pedido NUMBER(9) NOT NULL CONSTRAINT LineasPedido REFERENCES Pedidos (Numero),
  Linea NUMBER(5) NOT NULL,
  Articulo VARCHAR2(20) NOT NULL CONSTRAINT LineasArticulo REFERENCES Articulos (Codigo),
  Cantidad NUMBER(9) NOT NULL,
  Precio NUMBER(11, 2) NOT NULL,
  CONSTRAINT ClaveLineas PRIMARY KEY (Pedido, Linea))
GO

CREATE INDEX PedidosPorCliente ON Pedidos (Cliente, Fecha)
GO

CREATE INDEX LineasPorArticulo ON Lineas (Articulo)
GO

CREATE SEQUENCE SecuenciaPedidos START WITH 25001 INCREMENT BY 1 NOCACHE
GO

CREATE SEQUENCE SecuenciaClientes START WITH 1001 INCREMENT BY 1 NOCACHE
GO

CREATE VIEW ImportePorCliente AS
SELECT C.Codigo, C.Nombre, Sum(L.Cantidad * L.Precio) AS Importe
FROM Clientes C INNER JOIN Pedidos P ON P.Cliente = C.Codigo
INNER JOIN Lineas L ON L.Pedido = P.Numero
GROUP BY C.Codigo, C.Nombre
GO

CREATE OR REPLACE PROCEDURE AltaPedido (
  pCliente IN NUMBER, pFecha IN DATE, pPortes IN NUMBER, pNumero OUT NUMBER) IS
BEGIN
  SELECT SecuenciaPedidos.NEXTVAL INTO pNumero FROM DUAL;
  INSERT INTO Pedidos (Numero, Cliente, Fecha, Portes) VALUES (pNumero, pCliente, pFecha, pPortes);
END;
GO

GRANT SELECT, INSERT, UPDATE ON Clientes TO "[UsuarioQVRCli]"
GO

GRANT SELECT, INSERT, UPDATE ON Pedidos TO "[UsuarioQVRCli]"
GO

GRANT SELECT, INSERT, UPDATE, DELETE ON Lineas TO "[UsuarioQVRCli]"
GO

GRANT SELECT ON Articulos TO "[UsuarioQVRCli]"
GO

GRANT SELECT ON Familias TO "[UsuarioQVRCli]"
GO

GRANT SELECT ON Provincias TO "[UsuarioQVRCli]"
GO

GRANT SELECT ON ImportePorCliente TO "[UsuarioQVRCli]"
GO

GRANT EXECUTE ON AltaPedido TO "[UsuarioQVRCli]"
GO
