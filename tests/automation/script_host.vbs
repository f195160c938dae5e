' Prints what a script sees of the library: results with their types, changed variables, errors.
Option Explicit
On Error Resume Next

Sub Show(what, value)
  WScript.Echo what & ": " & TypeName(value) & " " & value
End Sub

Sub ShowError(what)
  WScript.Echo what & ": error " & Err.Number
  Err.Clear
End Sub

Sub Use(number)
  cfp.Asignar id, number, "", "", "", "", "", "", "", ""
End Sub

Dim version, cfp, other, scr, query, both, list, value, id, engine, text, folder, name
Dim fields, values, fixed(1), nothingYet, empties()

Set version = CreateObject("QVRlib21.Ov")
Show "Version", version.Version
Show "CadenaVersion", version.CadenaVersion

Set cfp = CreateObject("QVRlib21.QVRcfp")
id = "mi aplicacion"
engine = "2"
text = "SQLOLEDB"
Show "Asignar", cfp.Asignar(id, engine, text, "SRV01", "Gestion", "sa", "", "app", "pw", "")
Show "MotorBD", cfp.MotorBD
Show "CadenaADO client", cfp.CadenaADO(id, False)
Show "CadenaADO administrator", cfp.CadenaADO(id, 1)
Show "ClaveCli", cfp.ClaveCli(id)
Show "engine after the call", engine

folder = CreateObject("Scripting.FileSystemObject").GetSpecialFolder(2).Path
name = "script_host"
Show "Guardar", cfp.Guardar(id, folder, name)
Set other = CreateObject("QVRlib21.QVRcfp")
Show "Crear with another identification", other.Crear("otra", folder, name)
Show "Crear", other.Crear(id, folder, name)
Show "Archivo", other.Archivo
CreateObject("Scripting.FileSystemObject").DeleteFile folder & "\" & name & ".cfp"

Show "TextoAValor N", cfp.TextoAValor("N", "2.5 kg")
Show "TextoAValor L", cfp.TextoAValor("l", "1")
Show "TextoAValor X", cfp.TextoAValor("X", "1")
Show "ValorATexto F", cfp.ValorATexto("F", DateSerial(2011, 1, 5))
Show "ValorATexto N", cfp.ValorATexto("N", -0.25)
Show "ValorATexto array", cfp.ValorATexto("T", Array(1, 2))

Use 2
Show "ComillasSQL", cfp.ComillasSQL("O'Hara")
Show "ExpSQL integer", cfp.ExpSQL(5)
Show "ExpSQL double", cfp.ExpSQL(-0.25)
Show "ExpSQL currency", cfp.ExpSQL(CCur(1.5))
Show "ExpSQL text", cfp.ExpSQL("5")
Show "ExpSQL date", cfp.ExpSQL(DateSerial(2011, 1, 5))
Show "ExpSQL boolean", cfp.ExpSQL(True)
Show "ExpSQL nothing yet", cfp.ExpSQL(nothingYet)
Show "ExpSQL object", cfp.ExpSQL(cfp)
Show "ExpSQL array", cfp.ExpSQL(Array(1, 2))
Show "FechaHoraSQL", cfp.FechaHoraSQL("Ahora")
Show "LogicoSQL", cfp.LogicoSQL(1)
Show "CadenaParaLikeSQL", cfp.CadenaParaLikeSQL("50%", , True)
Show "sqlTOP", cfp.sqlTOP("5")
Show "sqlAlias", cfp.sqlAlias("Total")

fields = Array("Id", "Nombre")
values = Array(5, "Ana")
fixed(0) = "'a'"
fixed(1) = "Nombre"
Show "SqlINSERT", cfp.SqlINSERT("Clientes", values)
Show "SqlInsert2", cfp.SqlInsert2("Clientes", fields, Array(5, Null))
Show "SqlUPDATE", cfp.SqlUPDATE("Clientes", "ID", 7, fields, values)
Show "sqlConcatenar", cfp.sqlConcatenar(fixed)
Show "sqlCASE", cfp.sqlCASE("Estado", Array(1, "'Alta'", "'Otra'"))
Show "sqlWhereRelacionTablas", cfp.sqlWhereRelacionTablas(Array("a", "b", "l"))
Show "SqlINSERT no array", cfp.SqlINSERT("Clientes", 5)

cfp.sqlConcatenar Array()
ShowError "nothing to concatenate"
cfp.sqlConcatenar empties
ShowError "an array without bounds"
cfp.sqlWhereRelacionTablas Array("a", "b")
ShowError "half a triple"

Set other = CreateObject("ADODB.Command")
Show "AgregarParametroADO", cfp.AgregarParametroADO(other, "NVARCHAR", "@Nombre", "Ana", 50)
Show "its type", other.Parameters(0).Type
Show "its direction", other.Parameters(0).Direction
Use 3
Show "AgregarParametroADO of Oracle", cfp.AgregarParametroADO(Nothing, "INT", "@r", , , 4)
ShowError "up to here"

Set query = CreateObject("QVRlib21.cSQL20")
fields = Array("C.Nombre", "T+", "C.Alta", "F>Fecha")
Show "iSQL20_Crear", query.iSQL20_Crear(2, "Clientes", False, fields, "Clientes C")
Show "iSQL20_InterpretarBusqueda", query.iSQL20_InterpretarBusqueda("Nombre", "ana; ""50%""")
Show "no search", query.iSQL20_InterpretarBusqueda("Fecha", "x")
Show "iSQL20_AmpliarOrden", query.iSQL20_AmpliarOrden(2)
Show "iSQL20_SQL", query.iSQL20_SQL
Show "iSQL20_CriterioActual", query.iSQL20_CriterioActual
query.iSQL20_TOP = 5
Show "iSQL20_TOP", query.iSQL20_TOP
Set both = CreateObject("QVRlib21.uSQL20")
Show "the union's", both.iSQL20_CrearDesdeTextoDefinicion(query.iSQL20_TextoDefinicion)
Show "its iSQL20_SQL", both.iSQL20_SQL
query.SQL
ShowError "a name that only iSQL20 has"

Set scr = CreateObject("QVRlib21.QVRScr")
Show "UsuarioSegunMotor", scr.UsuarioSegunMotor(3)
Show "without regard to case", scr.usuariosegunmotor("1")

Show "CargarDefinicion of no folder", scr.CargarDefinicion(id, 2, folder & "\none", "Gestion", "BD", "", "", "", "", False)
Show "CargarActualizacion of no folder", scr.CargarActualizacion(id, 2, folder & "\none", "Gestion", 1, "BD", "", "", "", "", 0)

Set list = CreateObject("QVRlib21.QVRprp")
list.CreaPropiedad "T", "Nombre", "Ana"
list.CreaPropiedad "N", "Precio", 2.5
list.CreaPropiedad "F", "Alta", DateSerial(2011, 1, 5)
list.CreaPropiedad "T", "nombre", "Eva"
Show "NumPropiedades", list.NumPropiedades
Show "by name", list("nombre")
Show "by position", list(3)
Show "by a text that is a number", list("1")
Show "no such name", list("Nada")
Show "Item", list.Item("Alta")
list("Precio") = 3
list.Item("Nada") = 3
Show "written by name", list("Precio")
list(0) = Array(1, 2)
fields = list("Nombre")
Show "an array as value", fields(1)
Show "NombrePropiedad", list.NombrePropiedad(3)
For Each value In list
  WScript.Echo "For Each: " & TypeName(value)
Next
list.CreaPropiedad "N", "Precio"
ShowError "a property without its value"
list.Borra
Show "NumPropiedades after Borra", list.NumPropiedades

scr.UsuarioSegunMotor
ShowError "argument left out"
scr.UsuarioSegunMotor 1, 2
ShowError "one argument too many"
scr.UsuarioSegunMotor "dos"
ShowError "no number"
cfp.Provider = "x"
ShowError "read-only property"
cfp.NoExiste
ShowError "unknown member"
WScript.Echo "end"
