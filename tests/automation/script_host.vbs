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

Dim version, cfp, other, scr, id, engine, text, folder, name

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

Set scr = CreateObject("QVRlib21.QVRScr")
Show "UsuarioSegunMotor", scr.UsuarioSegunMotor(3)
Show "without regard to case", scr.usuariosegunmotor("1")

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
