' A script's call of a stored procedure on a server: results with their types, changed variables.
Option Explicit
On Error Resume Next

Sub Show(what, value)
  WScript.Echo what & ": " & TypeName(value) & " " & value
End Sub

Dim environment, cfp, connection, parameters, statements, values, fixed(1)
Set environment = CreateObject("WScript.Shell").Environment("PROCESS")
Set cfp = CreateObject("QVRlib21.QVRcfp")
cfp.Asignar "id", 2, "", "", "", "", "", "", "", ""
Set connection = CreateObject("ADODB.Connection")
connection.Open "Provider=MSDASQL;Extended Properties=""" & environment("QVR_TESTS_CONNECTION") & """"
parameters = "doble(out r int, in n int, out doble int) "
statements = "begin select 0 into r; select n * 2 into doble; end"
If environment("QVR_TESTS_SERVER") = "mariadb" Then
  connection.Execute "create procedure " & parameters & statements
Else
  connection.Execute "create function " & parameters & "language plpgsql as $$ " & statements & " $$"
End If

values = Array(21, 0)
fixed(0) = 4
fixed(1) = Empty
Show "EjecutarProcSQL7", cfp.EjecutarProcSQL7(connection, "doble", values)
Show "its output", values(1)
Show "EjecutarProcSQL7 fixed array", cfp.EjecutarProcSQL7(connection, "doble", fixed)
Show "its output", fixed(1)
values(1) = 1
Show "EjecutarProcSQL7 by value", cfp.EjecutarProcSQL7(connection, "doble", (values))
Show "its output", values(1)
connection.Close
WScript.Echo "up to here: error " & Err.Number
