' A condition of the program's own for what a name begins with, which has no UPPER around the column.
'   cscript //nologo begins_with.vbs TYPED
Option Explicit

Const SqlServer = 2
Dim Parametros, Lista, Escrito
Escrito = WScript.Arguments(0)
Set Parametros = CreateObject("QVRlib21.QVRcfp")
Parametros.Asignar "indices", SqlServer, "", "", "", "", "", "", "", ""
Set Lista = CreateObject("QVRlib21.cSQL20")
Lista.iSQL20_Crear SqlServer, "Clientes", False, Array("Nombre", "T"), "Clientes"

Lista.iSQL20_AmpliarCondicionWhere "Nombre LIKE " & Parametros.CadenaParaLikeSQL(Escrito, False, True), _
  "Nombre: " & Escrito & "*"
WScript.Echo Lista.iSQL20_SQL
WScript.Echo Lista.iSQL20_CriterioActual
