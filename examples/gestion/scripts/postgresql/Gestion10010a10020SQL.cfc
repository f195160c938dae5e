CREATE TABLE FormasPago (
  Código varchar(3) NOT NULL, Descripción varchar(50) NOT NULL, Plazo int NOT NULL,
  PRIMARY KEY (Código))
GO

INSERT INTO FormasPago (Código, Descripción, Plazo) VALUES ('CON', 'Contado', 0)
GO

INSERT INTO FormasPago (Código, Descripción, Plazo) VALUES ('R30', 'Recibo a 30 días', 30)
GO

INSERT INTO FormasPago (Código, Descripción, Plazo) VALUES ('R60', 'Recibo a 60 días', 60)
GO

INSERT INTO FormasPago (Código, Descripción, Plazo) VALUES ('TRA', 'Transferencia bancaria', 15)
GO

ALTER TABLE Pedidos ADD FormaPago varchar(3),
  ADD CONSTRAINT PedidosFormaPago FOREIGN KEY (FormaPago) REFERENCES FormasPago (Código)
GO

UPDATE Pedidos SET FormaPago = CASE WHEN Portes = 0 THEN 'R30' ELSE 'CON' END
GO

DROP PROCEDURE AltaPedido
GO

CREATE PROCEDURE AltaPedido (ElCliente int, LaFecha date, LosPortes decimal(12, 2), INOUT ElNúmero int,
  LaForma varchar(3) DEFAULT 'CON')
LANGUAGE plpgsql AS $$
BEGIN
  LOCK TABLE Pedidos IN EXCLUSIVE MODE;
  SELECT Coalesce(Max(Número), 24000) + 1 INTO ElNúmero FROM Pedidos;
  INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, FormaPago)
  VALUES (ElNúmero, ElCliente, LaFecha, LosPortes, LaForma);
END
$$
GO

UPDATE Esquema SET Versión = 10020, Fecha = '2024-05-15' WHERE Versión = 10010
GO
