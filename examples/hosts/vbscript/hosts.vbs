' The library from VBScript: cscript //nologo hosts.vbs FOLDER [PROVIDER OPTIONS]
' Everything is late-bound: classes and members are found by their names.
Option Explicit

Const Id = "hosts of QVRlib21"
Const SqlServer = 2
Dim folder, provider, options

If WScript.Arguments.Count <> 1 And WScript.Arguments.Count <> 3 Then
  WScript.Echo "usage: cscript //nologo hosts.vbs FOLDER [PROVIDER OPTIONS]"
  WScript.Quit 2
End If
folder = WScript.Arguments(0)
provider = "SQLOLEDB"
options = "Integrated Security=SSPI;"
If WScript.Arguments.Count = 3 Then
  provider = WScript.Arguments(1)
  options = WScript.Arguments(2)
End If

Dim parameters
Set parameters = OpenedParameters()
ShowQuery parameters.MotorBD
RunScript parameters
ShowProperties parameters

' A file that is not there yet is written once; Crear then reads it into a new object.
Function OpenedParameters()
  Dim found, made
  Set found = CreateObject("QVRlib21.QVRcfp")
  If found.Crear(Id, folder, "hosts") Then
    WScript.Echo "Connection file: there already"
  Else
    Set made = CreateObject("QVRlib21.QVRcfp")
    Expect made.Asignar(Id, SqlServer, provider, "(local)", "tempdb", "", "", "", "", options), "Asignar"
    Expect made.Guardar(Id, folder, "hosts"), "Guardar"
    WScript.Echo "Connection file: created"
    Set found = CreateObject("QVRlib21.QVRcfp")
    Expect found.Crear(Id, folder, "hosts"), "Crear"
  End If
  WScript.Echo "Opened: " & found.Archivo & ", engine " & found.MotorBD
  Set OpenedParameters = found
End Function

' The class's own interface has the contract's members with iSQL20_ in front of their names.
Sub ShowQuery(engine)
  Dim query, columns, relations
  columns = Array("C.Nombre", "T+", "P.Fecha", "F+", "P.Importe", "N>Total")
  relations = Array("C.Id", "P.IdCliente", "L")
  Set query = CreateObject("QVRlib21.cSQL20")
  Expect query.iSQL20_Crear(engine, "Clientes", False, columns, "Clientes C, Pedidos P", relations), "iSQL20_Crear"
  WScript.Echo "Search understood: " & YesNo(query.iSQL20_InterpretarBusqueda("Nombre", "ana; luis"))
  ' It always answers False: the column number is 1 for the first.
  query.iSQL20_AmpliarOrden 2
  WScript.Echo "Criterion: " & query.iSQL20_CriterioActual
  WScript.Echo "SQL: " & query.iSQL20_SQL
End Sub

Sub RunScript(parameters)
  Dim script, commands, shown
  commands = "CREATE TABLE Avisos (Numero INTEGER)" & vbCrLf & "GO" & vbCrLf & _
             "DROP TABLE Avisos" & vbCrLf & "GO" & vbCrLf
  Set script = CreateScriptObject()
  ' A text to show that is empty comes back as the one that was shown: VBScript passes its variables by reference.
  shown = ""
  WScript.Echo "Script ran: " & YesNo(script.EjecutarComandos(Id, parameters.MotorBD, commands, _
    parameters.CadenaADO(Id, True), shown))
  WScript.Echo "By reference: [" & shown & "]"
End Sub

' Windows' script host calls the procedures below for the events; a host without such a method runs without them.
Function CreateScriptObject()
  Set CreateScriptObject = Nothing
  On Error Resume Next
  Set CreateScriptObject = WScript.CreateObject("QVRlib21.QVRScr", "script_")
  On Error GoTo 0
  If CreateScriptObject Is Nothing Then Set CreateScriptObject = CreateObject("QVRlib21.QVRScr")
End Function

Sub script_Progreso(message)
  WScript.Echo "Progress: " & message
End Sub

Sub script_Terminado(success)
  WScript.Echo "Finished: " & YesNo(success)
End Sub

' A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere.
Sub ShowProperties(parameters)
  Dim list, kinds, i
  Set list = CreateObject("QVRlib21.QVRprp")
  list.CreaPropiedad "T", "Titulo", "Pedidos"
  list.CreaPropiedad "N", "Margen", 12.5
  list.CreaPropiedad "F", "Desde", DateSerial(2024, 3, 1)
  kinds = Array("T", "N", "F")
  For i = 0 To list.NumPropiedades - 1
    WScript.Echo "Property " & i & ": " & list.NombrePropiedad(i) & " = " & parameters.ValorATexto(kinds(i), list(i))
  Next
End Sub

Function YesNo(truth)
  YesNo = "no"
  If truth Then YesNo = "yes"
End Function

Sub Expect(done, member)
  If done Then Exit Sub
  WScript.Echo member & " answered False"
  WScript.Quit 1
End Sub
