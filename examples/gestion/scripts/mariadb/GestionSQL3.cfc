CREATE FUNCTION ImporteDePedido (ElPedido int) RETURNS decimal(12, 2) READS SQL DATA
RETURN (SELECT Coalesce(Sum(Cantidad * Precio), 0) FROM Líneas WHERE Pedido = ElPedido)
GO

CREATE PROCEDURE AltaPedido (IN ElCliente int, IN LaFecha date, IN LosPortes decimal(12, 2), OUT ElNúmero int)
BEGIN
  SELECT Coalesce(Max(Número), 24000) + 1 INTO ElNúmero FROM Pedidos FOR UPDATE;
  INSERT INTO Pedidos (Número, Cliente, Fecha, Portes) VALUES (ElNúmero, ElCliente, LaFecha, LosPortes);
END
GO

CREATE PROCEDURE PedidosDeCliente (IN ElCliente int)
SELECT Número, Fecha, Portes, ImporteDePedido(Número) AS Importe
FROM Pedidos WHERE Cliente = ElCliente ORDER BY Fecha
GO

CREATE TRIGGER LíneasExistenciasAlta AFTER INSERT ON Líneas FOR EACH ROW
UPDATE Artículos SET Existencias = Existencias - NEW.Cantidad WHERE Código = NEW.Artículo
GO

CREATE TRIGGER LíneasExistenciasCambio AFTER UPDATE ON Líneas FOR EACH ROW
BEGIN
  UPDATE Artículos SET Existencias = Existencias + OLD.Cantidad WHERE Código = OLD.Artículo;
  UPDATE Artículos SET Existencias = Existencias - NEW.Cantidad WHERE Código = NEW.Artículo;
END
GO

CREATE TRIGGER LíneasExistenciasBaja AFTER DELETE ON Líneas FOR EACH ROW
UPDATE Artículos SET Existencias = Existencias + OLD.Cantidad WHERE Código = OLD.Artículo
GO

CREATE TRIGGER ClientesConPedidos BEFORE DELETE ON Clientes FOR EACH ROW
IF EXISTS (SELECT * FROM Pedidos WHERE Cliente = OLD.Código) THEN
  SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'El cliente tiene pedidos; no se puede borrar.';
END IF
GO

CREATE TRIGGER ArtículosPrecio BEFORE UPDATE ON Artículos FOR EACH ROW
IF NEW.Precio < 0 THEN
  SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'El precio es negativo.';
END IF
GO
