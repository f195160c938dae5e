' "Gestion" as a script: the same business program as the one in C++, through the same automation.
'   cscript //nologo gestion.vbs FOLDER SCRIPT [DATABASE [ANSWERER]]
' FOLDER    existing folder for the parameter file and the database
' SCRIPT    commands separated by GO lines, in UTF-8
' DATABASE  the file FOLDER\gestion.db as the database driver names it, where that differs
' ANSWERER  answer_boxes.exe, which then answers the library's boxes; without it a person does
' The library must be registered: regsvr32 QVRlib21.dll
' The last line tells whether all went well; a script engine that hides errors ends without it.
Option Explicit

Const Jet = 1
Const ForReading = 1
Dim Fso, Folder, Database, Answerer, Id, Step_, Names, Values
Dim Text, Inserts, CommandCount, Administrator, GoLine

If WScript.Arguments.Count < 2 Then
  WScript.Echo "usage: cscript //nologo gestion.vbs FOLDER SCRIPT [DATABASE [ANSWERER]]"
  WScript.Quit 2
End If
Set Fso = CreateObject("Scripting.FileSystemObject")
Folder = WScript.Arguments(0)
Database = Folder & "\gestion.db"
If WScript.Arguments.Count > 2 Then Database = WScript.Arguments(2)
If WScript.Arguments.Count > 3 Then Answerer = WScript.Arguments(3)
GoLine = vbCrLf & "GO" & vbCrLf
Id = "Gesti" & Character(243) & "n 1.0"
Names = Array("Provider", "DataSource", "InitialCatalogOTablespace", "UsuarioAdm", "UsuarioCli", "OtrosParametros", _
  "ClaveAdm", "ClaveCli")
Values = Array("MSDASQL", "", "Gesti" & Character(243) & "n", "Bego" & Character(241) & "a", "mostrador", _
  "Extended Properties=""DRIVER={SQLite3};Database=" & Database & ";""", _
  "Mu" & Character(241) & "oz-1987", "Pi" & Character(241) & Character(243) & "n")

WScript.Echo "Gestion: a business script and its database services"
ShowVersion
ShowParameterFile
ShowConnectionStrings
ReadScript WScript.Arguments(1)
ShowScript
Heading "A script with a wrong command, both answers"
ShowFailure "no", False
ShowFailure "yes", True
ShowRows
WScript.Echo ""
WScript.Echo "Everything was as expected."
WScript.Quit 0

' --- What is shown --------------------------------------------------------------------------------------------------

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
  Expect parameters.Asignar(Id, Jet, Values(0), Values(1), Values(2), Values(3), Values(6), Values(4), Values(7), _
    Values(5)), "Asignar answered False"
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
  Dim at, wide, utf8, letter, code
  For at = 1 To Len(value)
    letter = Mid(value, at, 1)
    code = Asc(letter)
    wide = wide & letter & Chr(0)
    ' All the letters used here are below 256, where two bytes suffice.
    If code < 128 Then utf8 = utf8 & letter Else utf8 = utf8 & Chr(192 + code \ 64) & Chr(128 + code Mod 64)
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
    parameters.UsuarioAdm, parameters.UsuarioCli, parameters.OtrosParametros, parameters.ClaveAdm(Id), _
    parameters.ClaveCli(Id))
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
  Dim parameters
  Heading "Connection strings"
  Set parameters = Loaded()
  Administrator = parameters.CadenaADO(Id, True)
  Expect Administrator <> "" And parameters.CadenaADO(Id, False) <> "", "CadenaADO answered nothing"
  WScript.Echo "   Administrator:" & vbCrLf & "   " & Administrator
  WScript.Echo "   Client:" & vbCrLf & "   " & parameters.CadenaADO(Id, False)
End Sub

Sub ShowScript
  Dim runner
  Heading "A script of many commands"
  If Fso.FileExists(Folder & "\gestion.db") Then Fso.DeleteFile Folder & "\gestion.db"
  Item "commands in the script", CommandCount
  Item "tables that it creates", Inserts.Count
  WScript.Echo "   This script engine cannot listen to events: no progress here."
  Set runner = CreateObject("QVRlib21.QVRScr")
  Expect runner.EjecutarComandos(Id, Jet, Text, Administrator), "The script did not run to its end"
  WScript.Echo "   EjecutarComandos answers True."
End Sub

Sub ShowFailure(answer, goesOn)
  Dim runner, before, after, wentOn, expected
  before = RowsOf("Clientes")
  Item "rows of Clientes before", before
  WScript.Echo "   The library will report the failure, then ask. Please answer: " & answer
  StartAnswerer answer
  Set runner = CreateObject("QVRlib21.QVRScr")
  wentOn = runner.EjecutarComandos(Id, Jet, TextWithMistake(), Administrator)
  ShowAnswered
  WScript.Echo "   EjecutarComandos answers " & CStr(wentOn) & "."
  If Answerer <> "" Then Expect wentOn = goesOn, "The answer had no effect"
  after = RowsOf("Clientes")
  Item "rows of Clientes after", after
  expected = 0
  If wentOn Then expected = 4
  Expect after - before = expected, "The run left " & (after - before) & " rows and not " & expected
  Inserts.Item("Clientes") = Inserts.Item("Clientes") + expected
End Sub

Sub ShowRows
  Dim table
  Heading "What the database holds"
  For Each table In Inserts.Keys()
    Item table, RowsOf(table) & " rows"
    Expect RowsOf(table) = Inserts.Item(table), "The commands inserted " & Inserts.Item(table) & " rows"
  Next
End Sub

' --- The database and the library's boxes ---------------------------------------------------------------------------

Function RowsOf(table)
  Dim connection, rows
  Set connection = CreateObject("ADODB.Connection")
  connection.Open Administrator
  Set rows = connection.Execute("SELECT Count(*) FROM [" & table & "]")
  RowsOf = CLng(rows.Fields.Item(0).Value)
  rows.Close
  connection.Close
End Function

Function InsertClient(number, name)
  InsertClient = "INSERT INTO [Clientes] ([C" & Character(243) & "digo], [Nombre], [Poblaci" & Character(243) & _
    "n], [Provincia], [Alta]) VALUES (" & number & ", '" & name & "', 'Getafe', 28, '2024-09-02')" & GoLine
End Function

' Five commands, the third of which names a table that does not exist.
Function TextWithMistake
  TextWithMistake = InsertClient(901, "Panader" & Character(237) & "a Segura") & InsertClient(902, "Viajes Ibarra") & _
    "DELETE FROM [Clinetes]" & GoLine & InsertClient(904, "Hotel Serrano") & InsertClient(905, "Talleres Pardo")
End Function

' The answers of the two boxes go to a file that gets its name when all is over: this engine cannot wait otherwise.
Sub StartAnswerer(answer)
  If Answerer = "" Then Exit Sub
  If Fso.FileExists(Folder & "\boxes.txt") Then Fso.DeleteFile Folder & "\boxes.txt"
  CreateObject("WScript.Shell").Run "cmd /c """"" & Answerer & """ " & answer & " 2 > """ & Folder & _
    "\boxes.tmp"" && ren """ & Folder & "\boxes.tmp"" boxes.txt""", 0, False
End Sub

Sub ShowAnswered
  Dim tries
  If Answerer = "" Then Exit Sub
  For tries = 1 To 100
    If Fso.FileExists(Folder & "\boxes.txt") Then Exit For
    CreateObject("WScript.Shell").Run "cmd /c exit", 0, True
  Next
  Expect Fso.FileExists(Folder & "\boxes.txt"), "Not all boxes came, or one could not be answered"
  WScript.Echo FromUtf8(PageText(Folder & "\boxes.txt"))
End Sub

' --- Texts ----------------------------------------------------------------------------------------------------------

Sub ReadScript(path)
  Dim commands, at, table
  Text = FromUtf8(PageText(path))
  commands = Split(Text, GoLine)
  CommandCount = UBound(commands)
  Set Inserts = CreateObject("Scripting.Dictionary")
  For at = 0 To CommandCount - 1
    table = NameAfter(commands(at), "CREATE TABLE [")
    If table <> "" Then Inserts.Add table, 0
    table = NameAfter(commands(at), "INSERT INTO [")
    If table <> "" Then Inserts.Item(table) = Inserts.Item(table) + 1
  Next
End Sub

Function NameAfter(command, lead)
  Dim at
  at = InStr(command, lead)
  If at > 0 Then NameAfter = Mid(command, at + Len(lead), InStr(at, command, "]") - at - Len(lead))
End Function

' The bytes of a file, each as the character of the system's code page.
Function PageText(path)
  Dim stream
  Set stream = Fso.OpenTextFile(path, ForReading)
  PageText = stream.ReadAll()
  stream.Close
End Function

' Line by line, because adding to a long text takes its time.
Function FromUtf8(page)
  Dim lines, at
  lines = Split(page, vbLf)
  For at = 0 To UBound(lines)
    If at > 0 Then FromUtf8 = FromUtf8 & vbLf
    FromUtf8 = FromUtf8 & DecodedLine(lines(at))
  Next
End Function

Function DecodedLine(line)
  Dim at, code, more
  at = 1
  Do While at <= Len(line)
    code = Asc(Mid(line, at, 1))
    more = 0
    If code >= 192 Then more = 1
    If code >= 224 Then more = 2
    Expect code < 240, "The script file holds a character that this program does not know"
    If more > 0 Then code = code Mod (128 / 2 ^ (more + 1))
    For more = 1 To more
      code = code * 64 + Asc(Mid(line, at + more, 1)) Mod 64
    Next
    DecodedLine = DecodedLine & Character(code)
    at = at + more
  Loop
End Function

' Not every engine has ChrW; without it the system's code page has to be a western one.
Function Character(code)
  On Error Resume Next
  Character = ChrW(code)
  If Err.Number = 0 Then Exit Function
  Expect code < 256, "This script engine cannot make character " & code
  Character = Chr(code)
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
