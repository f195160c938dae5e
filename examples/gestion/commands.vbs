' "Gestion" as scripts, the second: the database is installed and updated, a script with a mistake, the rows they leave.
'   cscript //nologo commands.vbs FOLDER SCRIPTS [ANSWERER]
' FOLDER    where parameters.vbs made its parameter file
' SCRIPTS   folder of the script files: the definition of the database and its updates
' ANSWERER  answer_boxes.exe, which then answers the library's boxes; without it a person does
' The last line tells whether all went well; a script engine that hides errors ends without it.
Option Explicit

Const Jet = 1
Const ForReading = 1
Const Id = "Gestion 1.0"
Const Application = "Gestion"
Const FirstVersion = 10000
Const LastVersion = 10100
Dim Fso, Folder, Scripts, Answerer, Step_, Inserts, Parameters, Administrator, GoLine

If WScript.Arguments.Count < 2 Then
  WScript.Echo "usage: cscript //nologo commands.vbs FOLDER SCRIPTS [ANSWERER]"
  WScript.Quit 2
End If
Set Fso = CreateObject("Scripting.FileSystemObject")
Folder = WScript.Arguments(0)
Scripts = Fso.GetAbsolutePathName(WScript.Arguments(1))
If WScript.Arguments.Count > 2 Then Answerer = WScript.Arguments(2)
GoLine = vbCrLf & "GO" & vbCrLf
Set Inserts = CreateObject("Scripting.Dictionary")
ReadParameters
ShowDefinition
ShowUpdates
Heading "A script with a wrong command, both answers"
ShowFailure "no", False
ShowFailure "yes", True
ShowRows
WScript.Echo ""
WScript.Echo "Everything was as expected."
WScript.Quit 0

Sub ReadParameters
  Set Parameters = CreateObject("QVRlib21.QVRcfp")
  Expect Parameters.Crear(Id, Folder, "gestion"), "There is no parameter file yet: parameters.vbs makes it"
  Administrator = Parameters.CadenaADO(Id, True)
End Sub

Sub ShowDefinition
  Dim text
  Heading "The database is installed"
  If Fso.FileExists(Folder & "\gestion.db") Then Fso.DeleteFile Folder & "\gestion.db"
  WScript.Echo "   This script engine cannot listen to events: no progress here."
  text = CreateObject("QVRlib21.QVRScr").CargarDefinicion(Id, Jet, Scripts, Application, _
    Parameters.InitialCatalogOTablespace, Parameters.UsuarioAdm, Parameters.ClaveAdm(Id), Parameters.UsuarioCli, _
    Parameters.ClaveCli(Id), False)
  Expect text <> "", "There is no definition in " & Scripts
  RunScript text
  ShowVersion FirstVersion
End Sub

Sub ShowUpdates
  Dim text
  Heading "The database is brought up to date"
  text = Update(Version())
  Expect text <> "", "There is no update in " & Scripts
  RunScript text
  ShowVersion LastVersion
  Expect Update(LastVersion) = "", "There is an update that should not be there"
  WScript.Echo "   CargarActualizacion from there answers an empty text."
End Sub

Function Update(from)
  Update = CreateObject("QVRlib21.QVRScr").CargarActualizacion(Id, Jet, Scripts, Application, from, _
    Parameters.InitialCatalogOTablespace, Parameters.UsuarioAdm, Parameters.ClaveAdm(Id), Parameters.UsuarioCli, _
    Parameters.ClaveCli(Id), False)
End Function

Sub RunScript(text)
  Item "commands", CountCommands(text)
  Item "tables", Inserts.Count
  Expect CreateObject("QVRlib21.QVRScr").EjecutarComandos(Id, Jet, text, Administrator), _
    "The script did not run to its end"
  WScript.Echo "   EjecutarComandos answers True."
End Sub

Sub ShowVersion(expected)
  Item "version of the database", Version()
  Expect Version() = expected, "The database should have version " & expected
End Sub

Function Version
  Version = FirstNumber("SELECT * FROM [Esquema]")
End Function

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

Function RowsOf(table)
  RowsOf = FirstNumber("SELECT Count(*) FROM [" & table & "]")
End Function

Function FirstNumber(query)
  Dim connection, rows
  Set connection = CreateObject("ADODB.Connection")
  connection.Open Administrator
  Set rows = connection.Execute(query)
  FirstNumber = CLng(rows.Fields.Item(0).Value)
  rows.Close
  connection.Close
End Function

Function InsertClient(number, name)
  InsertClient = "INSERT INTO [Clientes] VALUES (" & number & ", '" & name & "', 'Getafe', 28, NULL, " & _
    "'2024-09-02', NULL, 0)" & GoLine
End Function

' Five commands, the third of which names a table that does not exist.
Function TextWithMistake
  TextWithMistake = InsertClient(901, "Bodegas Segura") & InsertClient(902, "Viajes Ibarra") & _
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
  For tries = 1 To 1000
    If Fso.FileExists(Folder & "\boxes.txt") Then Exit For
    CreateObject("WScript.Shell").Run "cmd /c exit", 0, True
  Next
  Expect Fso.FileExists(Folder & "\boxes.txt"), "Not all boxes came, or one could not be answered"
  WScript.Echo FromUtf8(PageText(Folder & "\boxes.txt"))
End Sub

' How many commands a text has; the tables that they create and the rows that they insert are added to Inserts.
Function CountCommands(text)
  Dim commands, last, at, table
  commands = Split(text, GoLine)
  last = UBound(commands) - 1
  For at = 0 To last
    table = NameAfter(commands(at), "CREATE TABLE [")
    If table <> "" Then Inserts.Add table, 0
    table = NameAfter(commands(at), "INSERT INTO [")
    If table <> "" Then Inserts.Item(table) = Inserts.Item(table) + 1
  Next
  CountCommands = last + 1
End Function

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
  Dim at, code, followers, follower
  at = 1
  Do While at <= Len(line)
    code = Asc(Mid(line, at, 1))
    followers = 0
    If code >= 192 Then followers = 1
    If code >= 224 Then followers = 2
    Expect code < 240, "The script holds a character that this program does not know"
    If followers = 1 Then code = code Mod 32
    If followers = 2 Then code = code Mod 16
    For follower = 1 To followers
      code = code * 64 + Asc(Mid(line, at + follower, 1)) Mod 64
    Next
    DecodedLine = DecodedLine & Letter(code)
    at = at + 1 + followers
  Loop
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
