ALTER TABLE Pedidos ADD Importe decimal(12, 2) DEFAULT 0 NOT NULL
GO

UPDATE Pedidos SET Importe = ImporteDePedido(Número)
GO

CREATE OR REPLACE VIEW ImportePorCliente AS
SELECT C.Código, C.Nombre, Sum(P.Importe + P.Portes) AS Importe
FROM Clientes C INNER JOIN Pedidos P ON P.Cliente = C.Código
WHERE NOT C.Inactivo
GROUP BY C.Código, C.Nombre
GO

CREATE TRIGGER LíneasImporteAlta AFTER INSERT ON Líneas FOR EACH ROW
UPDATE Pedidos SET Importe = ImporteDePedido(Número) WHERE Número = NEW.Pedido
GO

CREATE TRIGGER LíneasImporteCambio AFTER UPDATE ON Líneas FOR EACH ROW
UPDATE Pedidos SET Importe = ImporteDePedido(Número) WHERE Número IN (OLD.Pedido, NEW.Pedido)
GO

CREATE TRIGGER LíneasImporteBaja AFTER DELETE ON Líneas FOR EACH ROW
UPDATE Pedidos SET Importe = ImporteDePedido(Número) WHERE Número = OLD.Pedido
GO

CREATE INDEX PedidosPorFormaPago ON Pedidos (FormaPago)
GO

UPDATE Esquema SET Versión = 10100, Fecha = '2024-07-01' WHERE Versión = 10020
GO
