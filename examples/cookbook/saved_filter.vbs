' Filters that users keep, in a table: with the version of the list that they were made for.
'   cscript //nologo saved_filter.vbs CONNECTION
Option Explicit

Const SqlServer = 2
Const VersionLista = 3
Dim Conexion, Parametros, Lista
Set Conexion = CreateObject("ADODB.Connection")
Conexion.Open WScript.Arguments(0)
Conexion.Execute "CREATE TABLE Filtros (Usuario VARCHAR(40), Lista VARCHAR(40), Version INTEGER, Texto TEXT)"
Set Parametros = CreateObject("QVRlib21.QVRcfp")
Parametros.Asignar "filtros", SqlServer, "", "", "", "", "", "", "", ""
Set Lista = NuevaLista()

Lista.iSQL20_InterpretarBusqueda "Nombre", "o'n; ana*"
Lista.iSQL20_AmpliarOrden 2
Guardar "eva", Lista
WScript.Echo "kept: " & Lista.iSQL20_CriterioActual

Set Lista = NuevaLista()
WScript.Echo "restored: " & Restaurar("eva", Lista) & ", " & Lista.iSQL20_CriterioActual
WScript.Echo Lista.iSQL20_SQL

' The list has changed since: its filters are offered no more.
Conexion.Execute "UPDATE Filtros SET Version = 2"
Set Lista = NuevaLista()
WScript.Echo "of an older list: " & Restaurar("eva", Lista) & ", [" & Lista.iSQL20_CriterioActual & "]"

' A text that was cut says nothing: the list stays as it was.
Conexion.Execute "UPDATE Filtros SET Version = 3, Texto = 'WHERE'"
WScript.Echo "cut: " & Restaurar("eva", Lista) & ", [" & Lista.iSQL20_CriterioActual & "]"

' A date in words is kept as the date that it was.
Set Lista = NuevaLista()
Lista.iSQL20_InterpretarBusqueda "Alta", "hoy"
WScript.Echo "words kept: " & (InStr(Lista.iSQL20_CriterioActualCompleto, "hoy") > 0)

' The whole query as a text, for a list that the user put together himself.
Dim Definicion, Copia
Set Lista = NuevaLista()
Lista.iSQL20_InterpretarBusqueda "Nombre", "luis"
Definicion = Lista.iSQL20_TextoDefinicion
Set Copia = CreateObject("QVRlib21.cSQL20")
WScript.Echo "whole: " & Copia.iSQL20_CrearDesdeTextoDefinicion(Definicion) & ", " & Copia.iSQL20_CriterioActual

Function NuevaLista()
  Set NuevaLista = CreateObject("QVRlib21.cSQL20")
  NuevaLista.iSQL20_Crear SqlServer, "Clientes", False, Array("Nombre", "T", "Alta", "F"), "Clientes"
End Function

Sub Guardar(Usuario, Lista)
  Conexion.Execute "DELETE FROM Filtros WHERE Lista='Clientes' AND Usuario=" & Parametros.ComillasSQL(Usuario)
  Conexion.Execute Parametros.SqlInsert2("Filtros", Array("Usuario", "Lista", "Version", "Texto"), _
    Array(Usuario, "Clientes", VersionLista, Lista.iSQL20_CriterioActualCompleto))
End Sub

' Whether there is a filter for this version of the list that the list could read.
Function Restaurar(Usuario, Lista)
  Dim Filas
  Restaurar = False
  Set Filas = Conexion.Execute("SELECT Texto FROM Filtros WHERE Lista='Clientes' AND Version=" & VersionLista & _
    " AND Usuario=" & Parametros.ComillasSQL(Usuario))
  If Not Filas.EOF Then
    Lista.iSQL20_CriterioActualCompleto = Filas.Fields("Texto").Value
    Restaurar = (Lista.iSQL20_CriterioActualCompleto = Filas.Fields("Texto").Value)
  End If
  Filas.Close
End Function
