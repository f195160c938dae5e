CREATE FUNCTION ImporteDePedido (ElPedido int) RETURNS decimal(12, 2) LANGUAGE sql STABLE AS $$
  SELECT Coalesce(Sum(Cantidad * Precio), 0) FROM Líneas WHERE Pedido = ElPedido;
$$
GO

CREATE PROCEDURE AltaPedido (ElCliente int, LaFecha date, LosPortes decimal(12, 2), INOUT ElNúmero int)
LANGUAGE plpgsql AS $$
BEGIN
  LOCK TABLE Pedidos IN EXCLUSIVE MODE;
  SELECT Coalesce(Max(Número), 24000) + 1 INTO ElNúmero FROM Pedidos;
  INSERT INTO Pedidos (Número, Cliente, Fecha, Portes) VALUES (ElNúmero, ElCliente, LaFecha, LosPortes);
END
$$
GO

CREATE FUNCTION PedidosDeCliente (ElCliente int)
RETURNS TABLE (Número int, Fecha date, Portes decimal(12, 2), Importe decimal(12, 2)) LANGUAGE sql STABLE AS $$
  SELECT P.Número, P.Fecha, P.Portes, ImporteDePedido(P.Número)
  FROM Pedidos P WHERE P.Cliente = ElCliente ORDER BY P.Fecha;
$$
GO

CREATE FUNCTION LíneasExistencias () RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
  IF TG_OP <> 'INSERT' THEN
    UPDATE Artículos SET Existencias = Existencias + OLD.Cantidad WHERE Código = OLD.Artículo;
  END IF;
  IF TG_OP <> 'DELETE' THEN
    UPDATE Artículos SET Existencias = Existencias - NEW.Cantidad WHERE Código = NEW.Artículo;
  END IF;
  RETURN NULL;
END
$$
GO

CREATE TRIGGER LíneasExistencias AFTER INSERT OR UPDATE OR DELETE ON Líneas
FOR EACH ROW EXECUTE FUNCTION LíneasExistencias ()
GO

CREATE FUNCTION ClientesConPedidos () RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
  IF EXISTS (SELECT * FROM Pedidos WHERE Cliente = OLD.Código) THEN
    RAISE EXCEPTION 'El cliente tiene pedidos; no se puede borrar.';
  END IF;
  RETURN OLD;
END
$$
GO

CREATE TRIGGER ClientesConPedidos BEFORE DELETE ON Clientes
FOR EACH ROW EXECUTE FUNCTION ClientesConPedidos ()
GO

CREATE FUNCTION ArtículosPrecio () RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
  RAISE EXCEPTION 'El precio es negativo.';
END
$$
GO

CREATE TRIGGER ArtículosPrecio BEFORE UPDATE ON Artículos
FOR EACH ROW WHEN (NEW.Precio < 0) EXECUTE FUNCTION ArtículosPrecio ()
GO
