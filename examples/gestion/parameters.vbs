' "Gestion" as scripts, the first: the library's version, a file of connection parameters and its connection strings.
'   cscript //nologo parameters.vbs FOLDER [DATABASE]
' FOLDER    existing folder for the parameter file and the database
' DATABASE  the file FOLDER\gestion.db as the database driver names it, where that differs
' The library must be registered: regsvr32 QVRlib21.dll
' The last line tells whether all went well; a script engine that hides errors ends without it.
Option Explicit

Const Jet = 1
Const ForReading = 1
Const Id = "Gestion 1.0"
Dim Fso, Folder, Database, Step_, Names, Values

If WScript.Arguments.Count < 1 Then
  WScript.Echo "usage: cscript //nologo parameters.vbs FOLDER [DATABASE]"
  WScript.Quit 2
End If
Set Fso = CreateObject("Scripting.FileSystemObject")
Folder = WScript.Arguments(0)
Database = Folder & "\gestion.db"
If WScript.Arguments.Count > 1 Then Database = WScript.Arguments(1)
Names = Array("Provider", "DataSource", "InitialCatalogOTablespace", "UsuarioAdm", "ClaveAdm", "UsuarioCli", _
  "ClaveCli", "OtrosParametros")
Values = Array("MSDASQL", "", "Gesti" & Letter(243) & "n", "Bego" & Letter(241) & "a", _
  "Mu" & Letter(241) & "oz-1987", "mostrador", "Pi" & Letter(241) & Letter(243) & "n", _
  "Extended Properties=""DRIVER={SQLite3};Database=" & Database & ";""")

ShowVersion
ShowParameterFile
ShowConnectionStrings
WScript.Echo ""
WScript.Echo "Everything was as expected."
WScript.Quit 0

Sub ShowVersion
  Dim version
  Heading "Registration and version"
  On Error Resume Next
  Set version = CreateObject("QVRlib21.Ov")
  Expect Err.Number = 0, "There is no class QVRlib21.Ov; register the library: regsvr32 QVRlib21.dll"
  On Error GoTo 0
  Item "Version", version.Version
  Item "CadenaVersion", version.CadenaVersion
  Item "Path", version.Path
  Item "PathCompleto", version.PathCompleto
End Sub

Sub ShowParameterFile
  Dim parameters, path, lines, at
  Heading "A file of connection parameters"
  path = Folder & "\gestion.cfp"
  If Fso.FileExists(path) Then Fso.DeleteFile path
  Set parameters = CreateObject("QVRlib21.QVRcfp")
  Expect parameters.Asignar(Id, Jet, Values(0), Values(1), Values(2), Values(3), Values(4), Values(5), Values(6), _
    Values(7)), "Asignar answered False"
  Expect parameters.Guardar(Id, Folder, "gestion"), "Guardar answered False"
  WScript.Echo "   Created " & path
  lines = Split(PageText(path), vbCrLf)
  Expect UBound(lines) = 10, "The parameter file does not have ten lines"
  For at = 0 To 9
    Item "line " & (at + 1) & ", " & Len(lines(at)) & " characters", Left(lines(at), 40) & "..."
  Next
  ShowNothingReadable PageText(path)
  ShowEqual
  ShowRefusal
End Sub

Sub ShowNothingReadable(page)
  Dim at, searched
  For at = 0 To UBound(Values)
    If Values(at) <> "" Then
      Expect Not FoundIn(page, Values(at)), "The file shows the value of " & Names(at)
      searched = searched + 1
    End If
  Next
  WScript.Echo "   Searched " & Len(page) & " bytes for " & searched & _
    " values, in system page, UTF-8 and UTF-16, in either case: none found."
End Sub

Function FoundIn(page, value)
  Dim at, wide, utf8, unit, code
  For at = 1 To Len(value)
    unit = Mid(value, at, 1)
    code = Asc(unit)
    wide = wide & unit & Chr(0)
    ' All the letters used here are below 256, where two bytes suffice.
    If code < 128 Then utf8 = utf8 & unit Else utf8 = utf8 & Chr(192 + code \ 64) & Chr(128 + code Mod 64)
  Next
  FoundIn = InStr(1, page, value, 1) > 0 Or InStr(1, page, wide, 1) > 0 Or InStr(1, page, utf8, 1) > 0
End Function

Function Loaded
  Dim parameters
  Set parameters = CreateObject("QVRlib21.QVRcfp")
  Expect parameters.Crear(Id, Folder, "gestion"), "Crear answered False"
  Set Loaded = parameters
End Function

' The properties in the order of Names.
Function PropertiesOf(parameters)
  PropertiesOf = Array(parameters.Provider, parameters.DataSource, parameters.InitialCatalogOTablespace, _
    parameters.UsuarioAdm, parameters.ClaveAdm(Id), parameters.UsuarioCli, parameters.ClaveCli(Id), _
    parameters.OtrosParametros)
End Function

Sub ShowEqual
  Dim parameters, properties, at
  Set parameters = Loaded()
  Expect parameters.MotorBD = Jet And parameters.Archivo = "gestion", "MotorBD or Archivo differs after loading"
  properties = PropertiesOf(parameters)
  For at = 0 To UBound(Names)
    Expect properties(at) = Values(at), Names(at) & " differs after loading: " & properties(at)
    Item Names(at), """" & properties(at) & """"
  Next
  WScript.Echo "   Loaded again: all properties are equal."
End Sub

Sub ShowRefusal
  Dim parameters, content
  Set parameters = Loaded()
  Expect Not parameters.Crear("another program", Folder, "gestion"), "The file was accepted with another identification"
  Expect parameters.MotorBD = 0 And parameters.Archivo = "", "The object is not empty after the refusal"
  For Each content In PropertiesOf(parameters)
    Expect content = "", "The object is not empty after the refusal"
  Next
  WScript.Echo "   With another identification: Crear answers False, and the object is empty."
End Sub

Sub ShowConnectionStrings
  Dim parameters, administrator, client
  Heading "Connection strings"
  Set parameters = Loaded()
  administrator = parameters.CadenaADO(Id, True)
  client = parameters.CadenaADO(Id, False)
  Expect administrator <> "" And client <> "", "CadenaADO answered nothing"
  WScript.Echo "   Administrator:" & vbCrLf & "   " & administrator
  WScript.Echo "   Client:" & vbCrLf & "   " & client
End Sub

' The bytes of a file, each as the character of the system's code page.
Function PageText(path)
  Dim stream
  Set stream = Fso.OpenTextFile(path, ForReading)
  PageText = stream.ReadAll()
  stream.Close
End Function

' Not every engine has ChrW; without it the system's code page has to be a western one.
Function Letter(code)
  On Error Resume Next
  Letter = ChrW(code)
  If Err.Number = 0 Then Exit Function
  Expect code < 256, "This script engine cannot make character " & code
  Letter = Chr(code)
End Function

Sub Heading(title)
  Dim line
  Step_ = Step_ + 1
  line = Step_ & ". " & title
  WScript.Echo ""
  WScript.Echo line
  WScript.Echo String(Len(line), "-")
End Sub

Sub Item(label, value)
  WScript.Echo "   " & label & Space(28 - Len(label)) & value
End Sub

Sub Expect(asExpected, otherwise)
  If asExpected Then Exit Sub
  WScript.Echo "gestion: " & otherwise
  WScript.Quit 1
End Sub
