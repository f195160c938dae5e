' A list as a form has it, without the form: columns, rows, search boxes, clicks on headings, a filter that is kept.
'   cscript //nologo list_form.vbs CONNECTION
Option Explicit

Const Jet = 1
Dim Conexion, Lista, Guardado
Set Conexion = CreateObject("ADODB.Connection")
Conexion.Open WScript.Arguments(0)
Llenar

' Opening the form.
Set Lista = CreateObject("QVRlib21.cSQL20")
Dim Columnas, Relaciones
Columnas = Array("C.Nombre", "T+", "C.Alta", "F+", "P.Importe", "N>Total")
Relaciones = Array("C.Id", "P.IdCliente", "I")
If Not Lista.iSQL20_Crear(Jet, "Pedidos", False, Columnas, "Clientes C, Pedidos P", Relaciones, _
                          "", 0, "", "C.Nombre") Then
  WScript.Quit 1
End If
Mostrar "opened"

' Enter in a search box; the box keeps what was typed.
Buscar "Nombre", "a*"
Buscar "Total", ">=10"
Buscar "Total", "nothing like this"

' Clicks on headings.
Ordenar "Total"
Ordenar "Total"

' "Save as my filter", "All", "My filter".
Guardado = Lista.iSQL20_CriterioActualCompleto
Lista.iSQL20_RestauraOriginal True, True
Mostrar "all"
Lista.iSQL20_CriterioActualCompleto = Guardado
Mostrar "my filter"

Sub Buscar(Columna, Escrito)
  If Lista.iSQL20_InterpretarBusqueda(Columna, Escrito) Then
    Mostrar Columna & ": " & Escrito
  Else
    WScript.Echo "not understood, the list stays: " & Escrito
  End If
End Sub

' AmpliarOrden always answers False; a second click turns the order round.
Sub Ordenar(Columna)
  Lista.iSQL20_AmpliarOrden Lista.iSQL20_NumColumna(Columna)
  Mostrar "click on " & Columna
End Sub

' The title of the form, then its rows.
Sub Mostrar(Que)
  Dim Filas, Linea
  WScript.Echo Que & " [" & Lista.iSQL20_CriterioActual & "]"
  Set Filas = Conexion.Execute(Lista.iSQL20_SQL)
  Do Until Filas.EOF
    WScript.Echo "  " & Filas.Fields("Nombre").Value & " " & Filas.Fields("Total").Value
    Filas.MoveNext
  Loop
  Filas.Close
End Sub

Sub Llenar()
  Dim Orden
  For Each Orden In Array("CREATE TABLE Clientes (Id INTEGER, Nombre VARCHAR(40), Alta DATE)", _
      "CREATE TABLE Pedidos (IdCliente INTEGER, Importe INTEGER)", _
      "INSERT INTO Clientes VALUES (1, 'Ana', '2024-01-05'), (2, 'Luis', '2024-02-05'), (3, 'Alba', '2024-03-05')", _
      "INSERT INTO Pedidos VALUES (1, 30), (1, 5), (2, 50), (3, 40)")
    Conexion.Execute Orden
  Next
End Sub
