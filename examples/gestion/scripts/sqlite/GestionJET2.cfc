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

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24001, 126, '2024-01-10', 6, 'Dejar en recepción (señora Pérez)')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24002, 102, '2024-01-10', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24003, 125, '2024-01-10', 3.5, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24004, 126, '2024-01-10', 9.25, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24005, 114, '2024-01-15', 6, 'Llamar antes: sólo tardes')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24006, 120, '2024-01-22', 0, 'El cliente pide ''recibí'' firmado')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24007, 113, '2024-01-24', 3.5, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24008, 124, '2024-01-25', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24009, 132, '2024-01-29', 3.5, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24010, 107, '2024-02-05', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24011, 115, '2024-02-07', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24012, 113, '2024-02-12', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24013, 135, '2024-02-13', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24014, 117, '2024-02-15', 9.25, 'Factura a nombre del gestor')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24015, 135, '2024-02-16', 6, 'Llamar antes: sólo tardes')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24016, 128, '2024-02-19', 6, 'Pago a 30 días, según contrato')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24017, 105, '2024-02-23', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24018, 118, '2024-02-26', 6, 'Dejar en recepción (señora Pérez)')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24019, 127, '2024-02-26', 3.5, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24020, 101, '2024-02-27', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24021, 136, '2024-02-27', 6, 'Urgente; portería cerrada los sábados')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24022, 110, '2024-02-27', 9.25, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24023, 124, '2024-02-28', 3.5, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24024, 102, '2024-02-29', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24025, 114, '2024-03-04', 6, 'Embalaje doble: artículo frágil')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24026, 131, '2024-03-06', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24027, 106, '2024-03-07', 3.5, 'Llamar antes: sólo tardes')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24028, 133, '2024-03-08', 9.25, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24029, 112, '2024-03-12', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24030, 113, '2024-03-13', 3.5, 'Dejar en recepción (señora Pérez)')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24031, 129, '2024-03-15', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24032, 112, '2024-03-20', 9.25, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24033, 124, '2024-03-21', 6, 'Entregar por la mañana')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24034, 129, '2024-03-25', 6, 'Entregar por la mañana')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24035, 123, '2024-03-26', 3.5, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24036, 129, '2024-03-28', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24037, 120, '2024-04-01', 0, 'Dejar en recepción (señora Pérez)')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24038, 133, '2024-04-04', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24039, 130, '2024-04-05', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24040, 133, '2024-04-09', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24041, 114, '2024-04-10', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24042, 120, '2024-04-15', 3.5, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24043, 124, '2024-04-18', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24044, 111, '2024-04-23', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24045, 136, '2024-04-23', 3.5, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24046, 120, '2024-04-23', 3.5, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24047, 128, '2024-04-29', 6, 'Entregar por la mañana')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24048, 104, '2024-04-30', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24049, 113, '2024-04-30', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24050, 114, '2024-05-03', 9.25, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24051, 134, '2024-05-08', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24052, 117, '2024-05-09', 9.25, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24053, 106, '2024-05-13', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24054, 115, '2024-05-17', 0, 'Urgente; portería cerrada los sábados')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24055, 120, '2024-05-23', 3.5, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24056, 110, '2024-05-24', 0, NULL)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24001, 1, 'ARC-040', 1, 4.1)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24002, 1, 'PAP-030', 25, 0.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24002, 2, 'INF-030', 1, 64)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24003, 1, 'ARC-020', 1, 3.04)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24004, 1, 'MOB-020', 25, 179.5)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24004, 2, 'PAP-010', 3, 4.65)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24004, 3, 'INF-040', 2, 8.82)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24005, 1, 'MOB-010', 3, 84.55)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24006, 1, 'ARC-010', 1, 1.35)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24007, 1, 'MOB-030', 25, 86.67)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24008, 1, 'INF-010', 25, 13.41)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24008, 2, 'PAP-020', 1, 0.07)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24009, 1, 'ARC-040', 2, 4.1)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24009, 2, 'MOB-010', 3, 89)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24010, 1, 'ESC-060', 1, 1.1)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24010, 2, 'ARC-060', 10, 7.45)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24011, 1, 'ESC-060', 5, 1.04)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24012, 1, 'ARC-030', 3, 2.61)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24012, 2, 'ESC-020', 3, 0.27)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24012, 3, 'INF-030', 3, 64)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24013, 1, 'ARC-010', 3, 1.22)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24014, 1, 'ARC-020', 2, 3.04)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24015, 1, 'INF-040', 2, 9.31)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24015, 2, 'INF-050', 2, 4.04)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24016, 1, 'PAP-030', 10, 0.85)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24016, 2, 'PAP-010', 5, 4.65)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24017, 1, 'MOB-040', 5, 27.4)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24017, 2, 'ESC-030', 1, 5.15)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24018, 1, 'SEÑ-010', 1, 3.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24019, 1, 'PAP-050', 25, 0.6)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24020, 1, 'ARC-020', 5, 3.04)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24021, 1, 'SEÑ-020', 1, 11.25)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24021, 2, 'INF-030', 10, 57.6)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24021, 3, 'INF-010', 1, 14.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24022, 1, 'INF-010', 2, 14.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24023, 1, 'SEÑ-020', 2, 11.25)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24023, 2, 'PAP-050', 1, 0.6)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24024, 1, 'ESC-010', 1, 0.45)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24025, 1, 'MOB-040', 1, 27.4)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24026, 1, 'INF-040', 1, 9.8)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24026, 2, 'ESC-010', 3, 0.45)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24027, 1, 'ESC-050', 1, 38.5)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24027, 2, 'PAP-020', 25, 0.08)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24028, 1, 'ARC-030', 25, 2.48)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24028, 2, 'ARC-050', 1, 5.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24028, 3, 'ESC-040', 1, 2.2)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24029, 1, 'MOB-040', 1, 27.4)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24029, 2, 'ARC-030', 1, 2.61)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24030, 1, 'ARC-010', 1, 1.35)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24031, 1, 'SEÑ-010', 1, 3.7)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24032, 1, 'INF-030', 2, 64)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24032, 2, 'ESC-060', 25, 1.1)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24032, 3, 'ARC-030', 25, 2.75)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24033, 1, 'INF-010', 10, 14.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24033, 2, 'ESC-030', 3, 5.15)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24034, 1, 'ARC-020', 1, 2.88)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24034, 2, 'ESC-040', 1, 2.09)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24035, 1, 'PAP-020', 1, 0.08)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24035, 2, 'INF-010', 2, 14.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24036, 1, 'ARC-060', 5, 6.71)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24037, 1, 'ARC-040', 3, 4.1)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24037, 2, 'SEÑ-030', 5, 2.95)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24038, 1, 'ESC-060', 10, 1.1)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24038, 2, 'SEÑ-020', 1, 11.25)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24038, 3, 'ARC-010', 3, 1.22)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24039, 1, 'ARC-040', 2, 4.1)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24039, 2, 'ESC-010', 2, 0.45)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24040, 1, 'ARC-040', 3, 4.1)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24041, 1, 'PAP-020', 2, 0.08)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24041, 2, 'ARC-050', 25, 5.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24042, 1, 'ESC-010', 1, 0.45)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24043, 1, 'SEÑ-020', 1, 11.88)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24044, 1, 'SEÑ-030', 2, 2.95)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24045, 1, 'PAP-050', 5, 0.6)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24046, 1, 'MOB-040', 10, 27.4)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24047, 1, 'ESC-020', 25, 0.28)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24048, 1, 'INF-020', 1, 17.95)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24048, 2, 'ESC-020', 3, 0.27)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24049, 1, 'PAP-050', 10, 0.6)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24049, 2, 'PAP-040', 5, 1.85)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24049, 3, 'SEÑ-010', 3, 3.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24050, 1, 'SEÑ-010', 25, 3.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24051, 1, 'ARC-060', 2, 7.45)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24052, 1, 'ESC-010', 1, 0.45)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24053, 1, 'PAP-030', 25, 0.95)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24053, 2, 'ESC-020', 1, 0.3)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24054, 1, 'ARC-010', 1, 1.35)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24055, 1, 'PAP-050', 3, 0.6)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24055, 2, 'INF-020', 1, 19.95)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24056, 1, 'SEÑ-030', 3, 2.8)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24056, 2, 'INF-010', 25, 14.15)
GO

UPDATE [Artículos] SET [Existencias] = [Existencias] + 50 WHERE [Existencias] < 5
GO

UPDATE [Pedidos] SET [Portes] = 0 WHERE [Número] IN (
  SELECT [Pedido] FROM [Líneas] GROUP BY [Pedido] HAVING Sum([Cantidad] * [Precio]) > 150)
GO
