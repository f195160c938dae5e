Attribute VB_Name = "Hosts"
' The library from VBA (Access, Excel, Word) and Visual Basic: import this module and ScriptProgress.cls, tick QVRlib21
' under Tools, References, and type in the immediate window:   ShowAll Environ$("TEMP")
Option Explicit

Private Const HostsId As String = "hosts of QVRlib21"

Public Sub ShowAll(ByVal Folder As String, Optional ByVal Provider As String = "SQLOLEDB", _
                   Optional ByVal Options As String = "Integrated Security=SSPI;")
    Dim Parameters As QVRcfp
    Set Parameters = OpenedParameters(Folder, Provider, Options)
    ShowQuery Parameters.MotorBD
    RunScript Parameters
    ShowProperties Parameters
End Sub

' A file that is not there yet is written once; Crear then reads it into a new object.
Private Function OpenedParameters(ByVal Folder As String, ByVal Provider As String, ByVal Options As String) As QVRcfp
    Dim Found As QVRcfp, Made As QVRcfp
    Set Found = New QVRcfp
    If Found.Crear(HostsId, Folder, "hosts") Then
        Debug.Print "Connection file: there already"
    Else
        Set Made = New QVRcfp
        Expect Made.Asignar(HostsId, MotorBDSQLServer, Provider, "(local)", "tempdb", "", "", "", "", Options), _
               "Asignar"
        Expect Made.Guardar(HostsId, Folder, "hosts"), "Guardar"
        Debug.Print "Connection file: created"
        Set Found = New QVRcfp
        Expect Found.Crear(HostsId, Folder, "hosts"), "Crear"
    End If
    Debug.Print "Opened: " & Found.Archivo & ", engine " & Found.MotorBD
    Set OpenedParameters = Found
End Function

' Held by the contract, the members have their own names; cSQL20's own interface puts iSQL20_ in front.
Private Sub ShowQuery(ByVal Engine As Long)
    Dim Query As iSQL20
    Set Query = New cSQL20
    Expect Query.Crear(Engine, "Clientes", False, _
                       Array("C.Nombre", "T+", "P.Fecha", "F+", "P.Importe", "N>Total"), "Clientes C, Pedidos P", _
                       Array("C.Id", "P.IdCliente", "L")), "Crear"
    Debug.Print "Search understood: " & YesNo(Query.InterpretarBusqueda("Nombre", "ana; luis"))
    ' Columns count from 1; the answer is always False.
    Query.AmpliarOrden 2
    Debug.Print "Criterion: " & Query.CriterioActual
    Debug.Print "SQL: " & Query.SQL
End Sub

Private Sub RunScript(ByVal Parameters As QVRcfp)
    Dim Progress As ScriptProgress, Commands As String, Connection As String, Shown As String, Ran As Boolean
    Commands = "CREATE TABLE Avisos (Numero INTEGER)" & vbCrLf & "GO" & vbCrLf & _
               "DROP TABLE Avisos" & vbCrLf & "GO" & vbCrLf
    Connection = Parameters.CadenaADO(HostsId, True)
    Set Progress = New ScriptProgress
    Set Progress.Script = New QVRScr
    ' A text to show that is empty comes back as the one that was shown.
    Ran = Progress.Script.EjecutarComandos(HostsId, Parameters.MotorBD, Commands, Connection, Shown)
    Debug.Print "Script ran: " & YesNo(Ran)
    Debug.Print "By reference: [" & Shown & "]"
End Sub

' A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere.
Private Sub ShowProperties(ByVal Parameters As QVRcfp)
    Dim Properties As QVRprp, Kinds As Variant, I As Long
    Set Properties = New QVRprp
    Properties.CreaPropiedad "T", "Titulo", "Pedidos"
    Properties.CreaPropiedad "N", "Margen", 12.5
    Properties.CreaPropiedad "F", "Desde", DateSerial(2024, 3, 1)
    Kinds = Array("T", "N", "F")
    For I = 0 To Properties.NumPropiedades - 1
        Debug.Print "Property " & I & ": " & Properties.NombrePropiedad(I) & " = " & _
                    Parameters.ValorATexto(CStr(Kinds(I)), Properties(I))
    Next I
End Sub

Public Function YesNo(ByVal Truth As Boolean) As String
    If Truth Then YesNo = "yes" Else YesNo = "no"
End Function

Private Sub Expect(ByVal Done As Boolean, ByVal Member As String)
    If Not Done Then Err.Raise vbObjectError + 1, "Hosts", Member & " answered False"
End Sub
