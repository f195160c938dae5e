ALTER SESSION SET CURRENT_SCHEMA = "[UsuarioQVRAdm]"
GO

CREATE TABLE FormasPago (
  Codigo VARCHAR2(3) CONSTRAINT ClaveFormasPago PRIMARY KEY,
  Descripcion VARCHAR2(50) NOT NULL,
  Plazo NUMBER(5) NOT NULL)
GO

INSERT INTO FormasPago (Codigo, Descripcion, Plazo) VALUES ('CON', 'Contado', 0)
GO

INSERT INTO FormasPago (Codigo, Descripcion, Plazo) VALUES ('R30', 'Recibo a 30 días', 30)
GO

INSERT INTO FormasPago (Codigo, Descripcion, Plazo) VALUES ('R60', 'Recibo a 60 días', 60)
GO

INSERT INTO FormasPago (Codigo, Descripcion, Plazo) VALUES ('TRA', 'Transferencia bancaria', 15)
GO

ALTER TABLE Pedidos ADD (FormaPago VARCHAR2(3) CONSTRAINT PedidosFormaPago REFERENCES FormasPago (Codigo))
GO

UPDATE Pedidos SET FormaPago = CASE WHEN Portes = 0 THEN 'R30' ELSE 'CON' END
GO

CREATE OR REPLACE PROCEDURE AltaPedido (
  pCliente IN NUMBER, pFecha IN DATE, pPortes IN NUMBER, pNumero OUT NUMBER, pFormaPago IN VARCHAR2 DEFAULT 'CON') IS
BEGIN
  SELECT SecuenciaPedidos.NEXTVAL INTO pNumero FROM DUAL;
  INSERT INTO Pedidos (Numero, Cliente, Fecha, Portes, FormaPago)
  VALUES (pNumero, pCliente, pFecha, pPortes, pFormaPago);
END;
GO

GRANT SELECT ON FormasPago TO "[UsuarioQVRCli]"
GO

UPDATE Esquema SET Version = 10020, Fecha = DATE '2024-05-15' WHERE Version = 10010
GO
