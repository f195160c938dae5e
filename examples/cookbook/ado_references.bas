Attribute VB_Name = "AdoReferences"
' The library with whatever version of ADO the project refers to, or with none.
Option Explicit

Private Const SqlServer As Long = 2

' Both late-bound: no reference is needed, and none can be the wrong one.
Public Function EjecutarOrden(ByVal Cadena As String, ByVal Orden As String) As Boolean
    Dim Conexion As Object, Script As Object
    Set Conexion = CreateObject("ADODB.Connection")
    Conexion.Open Cadena
    Set Script = CreateObject("QVRlib21.QVRScr")
    EjecutarOrden = Script.Ejecutar1Comando(Conexion, Orden, SqlServer)
    Conexion.Close
End Function

' A connection of the project's own reference, whatever its version: the library is held as Object.
Public Function LlamarProcedimiento(ByVal Conexion As ADODB.Connection, ByVal Parametros As Object, _
                                    ByVal Nombre As String, ByRef Valores As Variant) As Boolean
    LlamarProcedimiento = Parametros.EjecutarProcSQL7(Conexion, Nombre, Valores)
End Function
