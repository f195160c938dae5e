' Installs the database of a connection string, and updates it from the version that it has.
'   cscript //nologo update.vbs ENGINE CONNECTION FOLDER
Option Explicit

Const Id = "cuentas"
Const Ultima = 10020
Dim Motor, Cadena, Carpeta, Script
Motor = CLng(WScript.Arguments(0))
Cadena = WScript.Arguments(1)
Carpeta = WScript.Arguments(2)
Set Script = CreateObject("QVRlib21.QVRScr")

Dim Definicion
Definicion = Script.CargarDefinicion(Id, Motor, Carpeta, "Cuentas", "", "", "", "", "", False)
If Definicion = "" Then Terminar "There is no definition in " & Carpeta
If Not Script.EjecutarComandos(Id, Motor, Definicion, Cadena) Then Terminar "Not installed"
WScript.Echo "installed: " & VersionDe(Cadena)
WScript.Echo "updated: " & Actualizar()
WScript.Echo "once more: " & Actualizar()

' The version that the database has afterwards.
Function Actualizar()
  Dim Comandos
  Actualizar = VersionDe(Cadena)
  If Actualizar = Ultima Then Exit Function
  If Actualizar > Ultima Then Terminar "The database is newer than this program"
  Comandos = Script.CargarActualizacion(Id, Motor, Carpeta, "Cuentas", Actualizar, "", "", "", "", "", False)
  If Comandos = "" Then Terminar "No update begins with " & Actualizar & ", or one cannot be read"
  If Not Script.EjecutarComandos(Id, Motor, Comandos, Cadena) Then Terminar "Not updated"
  Actualizar = VersionDe(Cadena)
  If Actualizar <> Ultima Then Terminar "The updates end with " & Actualizar
End Function

Function VersionDe(Cadena)
  Dim Conexion, Filas
  Set Conexion = CreateObject("ADODB.Connection")
  Conexion.Open Cadena
  Set Filas = Conexion.Execute("SELECT Version FROM Esquema")
  VersionDe = CLng(Filas.Fields("Version").Value)
  Conexion.Close
End Function

Sub Terminar(Motivo)
  WScript.Echo Motivo
  WScript.Quit 1
End Sub
