' A long run that can be cancelled between two commands.
'   cscript //nologo cancel.vbs CONNECTION AFTER
' AFTER: Cancel is pressed behind as many commands
Option Explicit

Const Jet = 1
Dim Cadena, Pulsar, Pulsado, Texto, I
Cadena = WScript.Arguments(0)
Pulsar = CLng(WScript.Arguments(1))
Texto = "CREATE TABLE Notas (N INTEGER)" & vbCrLf & "GO" & vbCrLf
For I = 1 To 5
  Texto = Texto & "INSERT INTO Notas VALUES (" & I & ")" & vbCrLf & "go" & vbCrLf & vbCrLf
Next
WScript.Echo "finished: " & EjecutarCancelable(Texto & "not run", Cadena, Jet)
WScript.Echo "tables: " & Tablas()

Function EjecutarCancelable(Texto, Cadena, Motor)
  Dim Script, Conexion, Comandos, I, Bien
  Set Script = CreateObject("QVRlib21.QVRScr")
  Set Conexion = CreateObject("ADODB.Connection")
  Conexion.Open Cadena
  Conexion.BeginTrans
  ' What is behind the last GO is not run, as in a run of the library.
  Comandos = Split(Texto, vbCrLf & "GO" & vbCrLf, -1, vbTextCompare)
  Bien = True
  For I = 0 To UBound(Comandos) - 1
    If Bien Then Bien = Not Cancelado(I)
    If Bien Then Bien = Script.Ejecutar1Comando(Conexion, Comandos(I), Motor)
    If Bien Then Mostrar I + 1 & "/" & UBound(Comandos)
  Next
  If Bien Then Conexion.CommitTrans Else Conexion.RollbackTrans
  Conexion.Close
  EjecutarCancelable = Bien
End Function

' A form calls DoEvents here, and its button sets Pulsado.
Function Cancelado(Hechos)
  If Hechos = Pulsar Then Pulsado = True
  Cancelado = Pulsado
End Function

Sub Mostrar(Cuanto)
  WScript.Echo Cuanto
End Sub

Function Tablas()
  Dim Conexion
  Set Conexion = CreateObject("ADODB.Connection")
  Conexion.Open Cadena
  Tablas = CLng(Conexion.Execute("SELECT Count(*) FROM sqlite_master").Fields(0).Value)
  Conexion.Close
End Function
