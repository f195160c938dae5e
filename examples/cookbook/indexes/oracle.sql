CREATE INDEX ClientesNombre ON Clientes (UPPER(Nombre))
GO
