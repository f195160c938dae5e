ALTER TABLE Clientes ADD NombreMayus AS UPPER(Nombre) PERSISTED
GO
CREATE INDEX ClientesNombreMayus ON Clientes (NombreMayus)
GO
