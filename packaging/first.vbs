' The library's version, a file of connection parameters, a value as SQL and a list query.
Option Explicit
Dim version, parameters, query, folder
Set version = CreateObject("QVRlib21.Ov")
WScript.Echo "QVRlib21 " & version.CadenaVersion

folder = CreateObject("Scripting.FileSystemObject").GetSpecialFolder(2)
Set parameters = CreateObject("QVRlib21.QVRcfp")
parameters.Asignar "my application", 2, "MSOLEDBSQL", "server", "Gestion", "sa", "", "", "", ""
WScript.Echo "saved: " & parameters.Guardar("my application", folder, "first")
WScript.Echo "text: " & parameters.ComillasSQL("Casa d'Ana")

Set query = CreateObject("QVRlib21.cSQL20")
query.iSQL20_Crear 2, "Clientes", False, Array("C.Nombre", "T+"), "Clientes C"
query.iSQL20_InterpretarBusqueda "Nombre", "ana"
WScript.Echo query.iSQL20_SQL
