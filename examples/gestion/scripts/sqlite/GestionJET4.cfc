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
