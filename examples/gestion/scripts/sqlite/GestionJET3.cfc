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
