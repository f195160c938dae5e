INSERT INTO [Funciones] ([Código], [Descripción]) VALUES ('ADM', 'Administración')
GO

INSERT INTO [Funciones] ([Código], [Descripción]) VALUES ('VEN', 'Ventas')
GO

INSERT INTO [Funciones] ([Código], [Descripción]) VALUES ('ALM', 'Almacén')
GO

INSERT INTO [Usuarios] ([Nombre], [Descripción]) VALUES ('[UsuarioQVRAdm]', 'Administrador de [NombreBD]')
GO

INSERT INTO [Usuarios] ([Nombre], [Descripción]) VALUES ('[UsuarioQVRCli]', 'Puesto de mostrador')
GO

INSERT INTO [FuncionesDeUsuario] ([Usuario], [Función]) VALUES ('[UsuarioQVRAdm]', 'ADM')
GO

INSERT INTO [FuncionesDeUsuario] ([Usuario], [Función]) VALUES ('[UsuarioQVRAdm]', 'VEN')
GO

INSERT INTO [FuncionesDeUsuario] ([Usuario], [Función]) VALUES ('[UsuarioQVRCli]', 'VEN')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (1, 'Álava')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (5, 'Ávila')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (8, 'Barcelona')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (10, 'Cáceres')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (11, 'Cádiz')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (14, 'Córdoba')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (15, 'La Coruña')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (18, 'Granada')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (20, 'Guipúzcoa')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (23, 'Jaén')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (24, 'León')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (26, 'La Rioja')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (28, 'Madrid')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (29, 'Málaga')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (33, 'Asturias')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (41, 'Sevilla')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (46, 'València')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (50, 'Zaragoza')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (101, 'Asesoría Peñalver', 'Cáceres', 10, '987 600 270', '2019-10-05')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (102, 'Hijos de J. Muñoz', 'Córdoba', 14, '924 483 638', '2019-01-06')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (103, 'Farmacia Ibáñez', 'Cáceres', 10, '913 604 726', '2020-06-28')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (104, 'Academia Cervantes', 'Sagunt', 46, '983 882 698', '2023-03-11')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (105, 'Talleres O''Donnell', 'Zaragoza', 50, NULL, '2021-06-13')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (106, 'Gestoría Güemes', 'Zaragoza', 50, '968 333 704', '2021-09-12')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (107, 'Librería El Búho', 'Sagunt', 46, '954 794 547', '2018-06-07')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (108, 'Autoescuela Ávila', 'Gijón', 33, '950 436 966', '2016-09-11')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (109, 'Clínica Dental Núñez', 'Arévalo', 5, '983 635 182', '2019-07-30')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (110, 'Cooperativa San José', 'Granada', 18, NULL, '2022-11-25')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (111, 'Viajes Cigüeña', 'Gijón', 33, NULL, '2022-07-01')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (112, 'Imprenta Léniz', 'Órdenes', 15, '917 390 726', '2020-12-12')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (113, 'Notaría Sáez-Ochoa', 'Órdenes', 15, '971 424 690', '2018-11-22')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (114, 'Colegio Virgen del Pilar', 'Granada', 18, '967 706 122', '2018-07-22')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (115, 'Panificadora Ordóñez', 'Cáceres', 10, NULL, '2020-12-10')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (116, 'Electricidad Vázquez', 'Irún', 20, '912 451 858', '2022-10-24')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (117, 'Inmobiliaria Doña Inés', 'Llodio', 1, '976 628 362', '2022-12-28')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (118, 'Arquitectos Iñigo y Asociados', 'Vélez-Málaga', 29, '966 814 160', '2020-11-04')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (119, 'Peluquería Bárbara', 'Avilés', 33, '952 891 828', '2019-12-28')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (120, 'Despacho Fdez. & Cía.', 'València', 46, NULL, '2022-10-08')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (121, 'Clínica Veterinaria Patiño', 'Trujillo', 10, NULL, '2020-11-06')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (122, 'Reformas Sánchez', 'Lucena', 14, '983 385 161', '2015-06-06')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (123, 'Hotel L''Àncora', 'Córdoba', 14, '950 756 135', '2017-12-20')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (124, 'Ayuntamiento de Cañizares', 'Avilés', 33, '952 893 764', '2015-06-25')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (125, 'Bodegas Señorío', 'Logroño', 26, '932 239 728', '2023-06-01')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (126, 'Transportes Raúl Yáñez', 'València', 46, '968 848 538', '2021-03-03')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (127, 'Estudio Fotográfico Luján', 'Órdenes', 15, '971 771 381', '2017-03-22')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (128, 'Seguros Martínez', 'Úbeda', 23, NULL, '2016-02-06')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (129, 'Muebles El Castaño', 'Trujillo', 10, '914 268 470', '2020-02-21')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (130, 'Ingeniería Acústica del Norte', 'Málaga', 29, '964 440 699', '2021-05-27')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (131, 'Restaurante Casa Íñigo', 'Oñati', 20, '971 432 583', '2022-06-04')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (132, 'Bufete Zúñiga', 'Gijón', 33, NULL, '2023-03-28')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (133, 'Residencia Los Álamos', 'Cáceres', 10, '971 943 101', '2019-10-23')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (134, 'Joyería Jerónimo', 'Córdoba', 14, '966 392 975', '2022-01-03')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (135, 'Frutas Begoña', 'Órdenes', 15, '977 801 521', '2017-06-25')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (136, 'Óptica Méndez', 'Lucena', 14, '934 645 498', '2018-02-14')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES ('ARC', 'Archivo y clasificación')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES ('ESC', 'Escritura y corrección')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES ('INF', 'Informática')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES ('MOB', 'Mobiliario de oficina')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES ('PAP', 'Papel y sobres')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES ('SEÑ', 'Señalización')
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ARC-010', 'Carpeta de cartón, tamaño folio', 'ARC', 1.35, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ARC-020', 'Archivador de palanca, lomo ancho', 'ARC', 3.2, 140)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ARC-030', 'Caja de transferencia 4 anillas', 'ARC', 2.75, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ARC-040', 'Separadores alfabéticos (A-Ñ-Z)', 'ARC', 4.1, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ARC-050', 'Fundas multitaladro, 100 uds.', 'ARC', 5.9, 60)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ARC-060', 'Clasificador acordeón 12 meses', 'ARC', 7.45, 140)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ESC-010', 'Bolígrafo azul, punta ½ mm', 'ESC', 0.45, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ESC-020', 'Lápiz nº 2 con goma', 'ESC', 0.3, 0)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ESC-030', 'Rotulador permanente, 4 colores', 'ESC', 5.15, 12)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ESC-040', 'Corrector en cinta de 5 m', 'ESC', 2.2, 4)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ESC-050', 'Pluma estilográfica "Señora"', 'ESC', 38.5, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('ESC-060', 'Tiza antipolvo; caja de 10', 'ESC', 1.1, 900)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('INF-010', 'Ratón óptico inalámbrico', 'INF', 14.9, 140)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('INF-020', 'Teclado español con «ñ»', 'INF', 19.95, 4)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('INF-030', 'Tóner negro para láser', 'INF', 64, 900)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('INF-040', 'Memoria USB de 32 Gb', 'INF', 9.8, 0)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('INF-050', 'Alfombrilla d''estil clàssic', 'INF', 4.25, 12)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('MOB-010', 'Silla giratoria con brazos', 'MOB', 89, 60)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('MOB-020', 'Mesa de 160 × 80 cm, haya', 'MOB', 179.5, 0)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('MOB-030', 'Cajonera de 3 cajones con llave', 'MOB', 96.3, 25)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('MOB-040', 'Lámpara de sobremesa', 'MOB', 27.4, 900)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('PAP-010', 'Papel A4 de 80 g, 500 hojas', 'PAP', 4.65, 900)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('PAP-020', 'Sobre americano con ventanilla', 'PAP', 0.08, 0)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('PAP-030', 'Bloc de notas adhesivas 76 × 76', 'PAP', 0.95, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('PAP-040', 'Cuaderno de espiral, 80 hojas', 'PAP', 1.85, 12)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('PAP-050', 'Cartulina añil 50 × 65', 'PAP', 0.6, 140)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('SEÑ-010', 'Cartel "Salida de emergencia"', 'SEÑ', 3.9, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('SEÑ-020', 'Placa de puerta «Dirección»', 'SEÑ', 12.5, 60)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES ('SEÑ-030', 'Pictograma: prohibido fumar', 'SEÑ', 2.95, 0)
GO
