' What each try of the manual's statements has at hand.
Const kFolder = "@FOLDER@", kDatabase = "@DATABASE@"

Sub Print(Text)
  WScript.Echo CStr(Text)
End Sub

' Connection parameters of an engine: 1 Jet, 2 SQL Server, 3 Oracle.
Function NewParameters(Engine)
  Set NewParameters = CreateObject("QVRlib21.QVRcfp")
  NewParameters.Asignar "manual", Engine, "MSDASQL", "", "", "", "", "", "", kDatabase
End Function

' A list query in Spanish over two tables: T Nombre, F Fecha, N Total.
Function NewQuery(Engine)
  Set NewQuery = CreateObject("QVRlib21.cSQL20")
  NewQuery.iSQL20_Crear Engine, "Clientes", False, Array("C.Nombre", "T+", "P.Fecha", "F+", "P.Importe", "N>Total"), _
    "Clientes C, Pedidos P", Array("C.Id", "P.IdCliente", "L")
  NewQuery.iSQL20_Idioma = "Español"
End Function

