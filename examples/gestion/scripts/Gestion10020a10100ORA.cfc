ALTER SESSION SET CURRENT_SCHEMA = "[UsuarioQVRAdm]"
GO

ALTER TABLE Pedidos ADD (Importe NUMBER(11, 2) DEFAULT 0 NOT NULL)
GO

UPDATE Pedidos P SET Importe = (
  SELECT NVL(Sum(L.Cantidad * L.Precio), 0) FROM Lineas L WHERE L.Pedido = P.Numero)
GO

CREATE OR REPLACE VIEW ImportePorCliente AS
SELECT C.Codigo, C.Nombre, Sum(P.Importe + P.Portes) AS Importe
FROM Clientes C INNER JOIN Pedidos P ON P.Cliente = C.Codigo
WHERE C.Inactivo = 0
GROUP BY C.Codigo, C.Nombre
GO

CREATE INDEX PedidosPorFormaPago ON Pedidos (FormaPago)
GO

UPDATE Esquema SET Version = 10100, Fecha = DATE '2024-07-01' WHERE Version = 10020
GO
