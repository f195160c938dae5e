' Texts that may be too long for a literal of Oracle: what becomes of them, and a parameter in their place.
'   cscript //nologo oracle_long_text.vbs CONNECTION
Option Explicit

Const Oracle = 3
Const LongVarWChar = 203
Dim Parametros, Conexion, Filas
Set Parametros = CreateObject("QVRlib21.QVRcfp")
Parametros.Asignar "notas", Oracle, "", "", "", "", "", "", "", ""
Set Conexion = CreateObject("ADODB.Connection")
Conexion.Open WScript.Arguments(0)
Conexion.Execute "CREATE TABLE Notas (Id INTEGER, Texto TEXT)"

Medir String(1333, "a")
Medir String(4000, "a")
Medir String(4001, "a")
Medir String(4000, Chr(241))
GuardarNota 1, "O'Neil"
GuardarNota 2, String(4500, Chr(241)) & "fin"
Set Filas = Conexion.Execute("SELECT Texto FROM Notas ORDER BY Id")
Do Until Filas.EOF
  WScript.Echo "in the table: " & Len(Filas.Fields("Texto").Value) & ", ends in " & Right(Filas.Fields("Texto").Value, 3)
  Filas.MoveNext
Loop
Filas.Close

' What ExpSQL leaves of a text, between the quotes.
Sub Medir(Texto)
  WScript.Echo Len(Texto) & " characters, " & Len(Parametros.ExpSQL(Texto)) - 2 & " in the literal, safe: " & _
    CabeEnLiteral(Texto)
End Sub

Sub GuardarNota(Id, Texto)
  Dim Comando
  If CabeEnLiteral(Texto) Then
    Conexion.Execute Parametros.SqlInsert2("Notas", Array("Id", "Texto"), Array(Id, Texto))
    Exit Sub
  End If
  Set Comando = CreateObject("ADODB.Command")
  Set Comando.ActiveConnection = Conexion
  Comando.CommandText = "INSERT INTO Notas (Id, Texto) VALUES (?, ?)"
  Parametros.AgregarParametroADO Comando, "INT", "Id", Id
  Comando.Parameters.Append Comando.CreateParameter("Texto", LongVarWChar, 1, Len(Texto), Texto)
  Comando.Execute
End Sub

' A character is at most three bytes in AL32UTF8, and one outside the Basic Multilingual Plane counts as two here.
Function CabeEnLiteral(Texto)
  CabeEnLiteral = Len(Texto) <= 1333
End Function
