CREATE INDEX ClientesNombre ON Clientes (UPPER(Nombre) text_pattern_ops)
GO
CREATE EXTENSION IF NOT EXISTS pg_trgm
GO
CREATE INDEX ClientesNombreDentro ON Clientes USING gin (UPPER(Nombre) gin_trgm_ops)
GO
