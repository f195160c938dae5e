ALTER TABLE Clientes ADD Correo varchar(80)
GO

ALTER TABLE Clientes ADD Inactivo boolean DEFAULT FALSE NOT NULL
GO

ALTER TABLE Artículos ADD IVA decimal(4, 1) DEFAULT 21 NOT NULL
GO

UPDATE Clientes SET Inactivo = TRUE WHERE Código NOT IN (SELECT Cliente FROM Pedidos)
GO

UPDATE Artículos SET IVA = 10 WHERE Familia = 'SEÑ'
GO

UPDATE Esquema SET Versión = 10010, Fecha = '2024-03-01' WHERE Versión = 10000
GO
