CREATE INDEX ClientesNombre ON Clientes (Nombre)
GO
