INSERT INTO Esquema (Versión, Fecha) VALUES (10000, '2023-12-01')
GO

INSERT INTO Funciones (Código, Descripción) VALUES ('ADM', 'Administración')
GO

INSERT INTO Funciones (Código, Descripción) VALUES ('VEN', 'Ventas')
GO

INSERT INTO Funciones (Código, Descripción) VALUES ('ALM', 'Almacén')
GO

INSERT INTO Usuarios (Nombre, Descripción) VALUES ('[UsuarioQVRAdm]', 'Administrador de [NombreBD]')
GO

INSERT INTO Usuarios (Nombre, Descripción) VALUES ('[UsuarioQVRCli]', 'Puesto de mostrador')
GO

INSERT INTO FuncionesDeUsuario (Usuario, Función) VALUES ('[UsuarioQVRAdm]', 'ADM')
GO

INSERT INTO FuncionesDeUsuario (Usuario, Función) VALUES ('[UsuarioQVRAdm]', 'VEN')
GO

INSERT INTO FuncionesDeUsuario (Usuario, Función) VALUES ('[UsuarioQVRCli]', 'VEN')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (1, 'Álava')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (5, 'Ávila')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (8, 'Barcelona')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (10, 'Cáceres')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (11, 'Cádiz')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (14, 'Córdoba')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (15, 'La Coruña')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (18, 'Granada')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (20, 'Guipúzcoa')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (23, 'Jaén')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (24, 'León')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (26, 'La Rioja')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (28, 'Madrid')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (29, 'Málaga')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (33, 'Asturias')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (41, 'Sevilla')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (46, 'València')
GO

INSERT INTO Provincias (Código, Nombre) VALUES (50, 'Zaragoza')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (101, 'Asesoría Peñalver', 'Cáceres', 10, '987 600 270', '2019-10-05')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (102, 'Hijos de J. Muñoz', 'Córdoba', 14, '924 483 638', '2019-01-06')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (103, 'Farmacia Ibáñez', 'Cáceres', 10, '913 604 726', '2020-06-28')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (104, 'Academia Cervantes', 'Sagunt', 46, '983 882 698', '2023-03-11')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (105, 'Talleres O''Donnell', 'Zaragoza', 50, NULL, '2021-06-13')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (106, 'Gestoría Güemes', 'Zaragoza', 50, '968 333 704', '2021-09-12')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (107, 'Librería El Búho', 'Sagunt', 46, '954 794 547', '2018-06-07')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (108, 'Autoescuela Ávila', 'Gijón', 33, '950 436 966', '2016-09-11')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (109, 'Clínica Dental Núñez', 'Arévalo', 5, '983 635 182', '2019-07-30')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (110, 'Cooperativa San José', 'Granada', 18, NULL, '2022-11-25')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (111, 'Viajes Cigüeña', 'Gijón', 33, NULL, '2022-07-01')
GO

INSERT INTO Clientes (Código, Nombre, Población, Provincia, Teléfono, Alta)
VALUES (112, 'Imprenta Léniz', 'Órdenes', 15, '917 390 726', '2020-12-12')
GO

INSERT INTO Familias (Código, Descripción) VALUES ('ARC', 'Archivo y clasificación')
GO

INSERT INTO Familias (Código, Descripción) VALUES ('ESC', 'Escritura y corrección')
GO

INSERT INTO Familias (Código, Descripción) VALUES ('INF', 'Informática')
GO

INSERT INTO Familias (Código, Descripción) VALUES ('MOB', 'Mobiliario de oficina')
GO

INSERT INTO Familias (Código, Descripción) VALUES ('PAP', 'Papel y sobres')
GO

INSERT INTO Familias (Código, Descripción) VALUES ('SEÑ', 'Señalización')
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('ARC-010', 'Carpeta de cartón, tamaño folio', 'ARC', 1.35, 350)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('ARC-020', 'Archivador de palanca, lomo ancho', 'ARC', 3.2, 140)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('ARC-030', 'Caja de transferencia 4 anillas', 'ARC', 2.75, 350)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('ESC-010', 'Bolígrafo azul, punta ½ mm', 'ESC', 0.45, 350)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('ESC-020', 'Lápiz nº 2 con goma', 'ESC', 0.3, 0)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('ESC-030', 'Rotulador permanente, 4 colores', 'ESC', 5.15, 12)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('INF-010', 'Ratón óptico inalámbrico', 'INF', 14.9, 140)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('INF-020', 'Teclado español con «ñ»', 'INF', 19.95, 4)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('INF-030', 'Tóner negro para láser', 'INF', 64, 900)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('MOB-010', 'Silla giratoria con brazos', 'MOB', 89, 60)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('MOB-020', 'Mesa de 160 × 80 cm, haya', 'MOB', 179.5, 0)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('MOB-030', 'Cajonera de 3 cajones con llave', 'MOB', 96.3, 25)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('PAP-010', 'Papel A4 de 80 g, 500 hojas', 'PAP', 4.65, 900)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('PAP-020', 'Sobre americano con ventanilla', 'PAP', 0.08, 0)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('PAP-030', 'Bloc de notas adhesivas 76 × 76', 'PAP', 0.95, 350)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('SEÑ-010', 'Cartel "Salida de emergencia"', 'SEÑ', 3.9, 350)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('SEÑ-020', 'Placa de puerta «Dirección»', 'SEÑ', 12.5, 60)
GO

INSERT INTO Artículos (Código, Descripción, Familia, Precio, Existencias)
VALUES ('SEÑ-030', 'Pictograma: prohibido fumar', 'SEÑ', 2.95, 0)
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24002, 102, '2024-01-10', 6, NULL)
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24010, 107, '2024-02-05', 6, NULL)
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24017, 105, '2024-02-23', 0, NULL)
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24020, 101, '2024-02-27', 6, NULL)
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24022, 110, '2024-02-27', 9.25, NULL)
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24024, 102, '2024-02-29', 0, NULL)
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24027, 106, '2024-03-07', 3.5, 'Llamar antes: sólo tardes')
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24029, 112, '2024-03-12', 0, NULL)
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24032, 112, '2024-03-20', 9.25, NULL)
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24044, 111, '2024-04-23', 0, NULL)
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24048, 104, '2024-04-30', 0, NULL)
GO

INSERT INTO Pedidos (Número, Cliente, Fecha, Portes, Observación)
VALUES (24053, 106, '2024-05-13', 0, NULL)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24002, 1, 'PAP-030', 25, 0.9)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio) VALUES (24002, 2, 'INF-030', 1, 64)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24017, 2, 'ESC-030', 1, 5.15)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24020, 1, 'ARC-020', 5, 3.04)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24022, 1, 'INF-010', 2, 14.9)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24024, 1, 'ESC-010', 1, 0.45)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24027, 2, 'PAP-020', 25, 0.08)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24029, 2, 'ARC-030', 1, 2.61)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio) VALUES (24032, 1, 'INF-030', 2, 64)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24032, 3, 'ARC-030', 25, 2.75)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24044, 1, 'SEÑ-030', 2, 2.95)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24048, 1, 'INF-020', 1, 17.95)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24048, 2, 'ESC-020', 3, 0.27)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio)
VALUES (24053, 1, 'PAP-030', 25, 0.95)
GO

INSERT INTO Líneas (Pedido, Línea, Artículo, Cantidad, Precio) VALUES (24053, 2, 'ESC-020', 1, 0.3)
GO

UPDATE Artículos SET Existencias = Existencias + 50 WHERE Existencias < 5
GO

UPDATE Pedidos SET Portes = 0 WHERE Número IN (
  SELECT Pedido FROM Líneas GROUP BY Pedido HAVING Sum(Cantidad * Precio) > 150)
GO
