ALTER TABLE [Líneas] DISABLE TRIGGER [LíneasExistencias]
GO

INSERT INTO [Esquema] ([Versión], [Fecha]) VALUES (10000, '20231201')
GO

INSERT INTO [Funciones] ([Código], [Descripción]) VALUES (N'ADM', N'Administración')
GO

INSERT INTO [Funciones] ([Código], [Descripción]) VALUES (N'VEN', N'Ventas')
GO

INSERT INTO [Funciones] ([Código], [Descripción]) VALUES (N'ALM', N'Almacén')
GO

INSERT INTO [Usuarios] ([Nombre], [Descripción]) VALUES (N'[UsuarioQVRAdm]', N'Administrador de [NombreBD]')
GO

INSERT INTO [Usuarios] ([Nombre], [Descripción]) VALUES (N'[UsuarioQVRCli]', N'Puesto de mostrador')
GO

INSERT INTO [FuncionesDeUsuario] ([Usuario], [Función]) VALUES (N'[UsuarioQVRAdm]', N'ADM')
GO

INSERT INTO [FuncionesDeUsuario] ([Usuario], [Función]) VALUES (N'[UsuarioQVRAdm]', N'VEN')
GO

INSERT INTO [FuncionesDeUsuario] ([Usuario], [Función]) VALUES (N'[UsuarioQVRCli]', N'VEN')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (1, N'Álava')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (5, N'Ávila')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (8, N'Barcelona')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (10, N'Cáceres')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (11, N'Cádiz')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (14, N'Córdoba')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (15, N'La Coruña')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (18, N'Granada')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (20, N'Guipúzcoa')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (23, N'Jaén')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (24, N'León')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (26, N'La Rioja')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (28, N'Madrid')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (29, N'Málaga')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (33, N'Asturias')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (41, N'Sevilla')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (46, N'València')
GO

INSERT INTO [Provincias] ([Código], [Nombre]) VALUES (50, N'Zaragoza')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (101, N'Asesoría Peñalver', N'Cáceres', 10, N'987 600 270', '20191005')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (102, N'Hijos de J. Muñoz', N'Córdoba', 14, N'924 483 638', '20190106')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (103, N'Farmacia Ibáñez', N'Cáceres', 10, N'913 604 726', '20200628')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (104, N'Academia Cervantes', N'Sagunt', 46, N'983 882 698', '20230311')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (105, N'Talleres O''Donnell', N'Zaragoza', 50, NULL, '20210613')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (106, N'Gestoría Güemes', N'Zaragoza', 50, N'968 333 704', '20210912')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (107, N'Librería El Búho', N'Sagunt', 46, N'954 794 547', '20180607')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (108, N'Autoescuela Ávila', N'Gijón', 33, N'950 436 966', '20160911')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (109, N'Clínica Dental Núñez', N'Arévalo', 5, N'983 635 182', '20190730')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (110, N'Cooperativa San José', N'Granada', 18, NULL, '20221125')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (111, N'Viajes Cigüeña', N'Gijón', 33, NULL, '20220701')
GO

INSERT INTO [Clientes] ([Código], [Nombre], [Población], [Provincia], [Teléfono], [Alta])
VALUES (112, N'Imprenta Léniz', N'Órdenes', 15, N'917 390 726', '20201212')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES (N'ARC', N'Archivo y clasificación')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES (N'ESC', N'Escritura y corrección')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES (N'INF', N'Informática')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES (N'MOB', N'Mobiliario de oficina')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES (N'PAP', N'Papel y sobres')
GO

INSERT INTO [Familias] ([Código], [Descripción]) VALUES (N'SEÑ', N'Señalización')
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'ARC-010', N'Carpeta de cartón, tamaño folio', N'ARC', 1.35, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'ARC-020', N'Archivador de palanca, lomo ancho', N'ARC', 3.2, 140)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'ARC-030', N'Caja de transferencia 4 anillas', N'ARC', 2.75, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'ESC-010', N'Bolígrafo azul, punta ½ mm', N'ESC', 0.45, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'ESC-020', N'Lápiz nº 2 con goma', N'ESC', 0.3, 0)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'ESC-030', N'Rotulador permanente, 4 colores', N'ESC', 5.15, 12)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'INF-010', N'Ratón óptico inalámbrico', N'INF', 14.9, 140)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'INF-020', N'Teclado español con «ñ»', N'INF', 19.95, 4)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'INF-030', N'Tóner negro para láser', N'INF', 64, 900)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'MOB-010', N'Silla giratoria con brazos', N'MOB', 89, 60)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'MOB-020', N'Mesa de 160 × 80 cm, haya', N'MOB', 179.5, 0)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'MOB-030', N'Cajonera de 3 cajones con llave', N'MOB', 96.3, 25)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'PAP-010', N'Papel A4 de 80 g, 500 hojas', N'PAP', 4.65, 900)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'PAP-020', N'Sobre americano con ventanilla', N'PAP', 0.08, 0)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'PAP-030', N'Bloc de notas adhesivas 76 × 76', N'PAP', 0.95, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'SEÑ-010', N'Cartel "Salida de emergencia"', N'SEÑ', 3.9, 350)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'SEÑ-020', N'Placa de puerta «Dirección»', N'SEÑ', 12.5, 60)
GO

INSERT INTO [Artículos] ([Código], [Descripción], [Familia], [Precio], [Existencias])
VALUES (N'SEÑ-030', N'Pictograma: prohibido fumar', N'SEÑ', 2.95, 0)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24002, 102, '20240110', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24010, 107, '20240205', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24017, 105, '20240223', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24020, 101, '20240227', 6, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24022, 110, '20240227', 9.25, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24024, 102, '20240229', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24027, 106, '20240307', 3.5, N'Llamar antes: sólo tardes')
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24029, 112, '20240312', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24032, 112, '20240320', 9.25, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24044, 111, '20240423', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24048, 104, '20240430', 0, NULL)
GO

INSERT INTO [Pedidos] ([Número], [Cliente], [Fecha], [Portes], [Observación])
VALUES (24053, 106, '20240513', 0, NULL)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24002, 1, N'PAP-030', 25, 0.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24002, 2, N'INF-030', 1, 64)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24017, 2, N'ESC-030', 1, 5.15)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24020, 1, N'ARC-020', 5, 3.04)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24022, 1, N'INF-010', 2, 14.9)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24024, 1, N'ESC-010', 1, 0.45)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24027, 2, N'PAP-020', 25, 0.08)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24029, 2, N'ARC-030', 1, 2.61)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24032, 1, N'INF-030', 2, 64)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24032, 3, N'ARC-030', 25, 2.75)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24044, 1, N'SEÑ-030', 2, 2.95)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24048, 1, N'INF-020', 1, 17.95)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24048, 2, N'ESC-020', 3, 0.27)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio])
VALUES (24053, 1, N'PAP-030', 25, 0.95)
GO

INSERT INTO [Líneas] ([Pedido], [Línea], [Artículo], [Cantidad], [Precio]) VALUES (24053, 2, N'ESC-020', 1, 0.3)
GO

UPDATE [Artículos] SET [Existencias] = [Existencias] + 50 WHERE [Existencias] < 5
GO

UPDATE [Pedidos] SET [Portes] = 0 WHERE [Número] IN (
  SELECT [Pedido] FROM [Líneas] GROUP BY [Pedido] HAVING Sum([Cantidad] * [Precio]) > 150)
GO

ALTER TABLE [Líneas] ENABLE TRIGGER [LíneasExistencias]
GO
