# The library from Windows PowerShell: powershell -File hosts.ps1 FOLDER [PROVIDER OPTIONS]
# The shell's width must be the library's: C:\Windows\SysWOW64\WindowsPowerShell\v1.0\powershell.exe is the 32-bit one.
# Events are not shown: PowerShell runs the actions for them between statements, and the run is one statement.
param(
    [Parameter(Mandatory = $true)] [string] $Folder,
    [string] $Provider = 'SQLOLEDB',
    [string] $Options = 'Integrated Security=SSPI;'
)
Set-StrictMode -Version Latest
$ErrorActionPreference = 'Stop'

$id = 'hosts of QVRlib21'
$sqlServer = 2

function Format-Truth([bool] $Truth) {
    if ($Truth) { 'yes' } else { 'no' }
}

function Assert-Done([bool] $Done, [string] $Member) {
    if (-not $Done) { throw "$Member answered False" }
}

# A file that is not there yet is written once; Crear then reads it into a new object.
function Open-Parameters {
    $found = New-Object -ComObject QVRlib21.QVRcfp
    if ($found.Crear($id, $Folder, 'hosts')) {
        Write-Host 'Connection file: there already'
    } else {
        $made = New-Object -ComObject QVRlib21.QVRcfp
        Assert-Done ($made.Asignar($id, $sqlServer, $Provider, '(local)', 'tempdb', '', '', '', '', $Options)) 'Asignar'
        Assert-Done ($made.Guardar($id, $Folder, 'hosts')) 'Guardar'
        Write-Host 'Connection file: created'
        $found = New-Object -ComObject QVRlib21.QVRcfp
        Assert-Done ($found.Crear($id, $Folder, 'hosts')) 'Crear'
    }
    Write-Host "Opened: $($found.Archivo), engine $([int] $found.MotorBD)"
    $found
}

# The class's own interface has the contract's members with iSQL20_ in front of their names.
function Show-Query([int] $Engine) {
    $query = New-Object -ComObject QVRlib21.cSQL20
    [object[]] $columns = 'C.Nombre', 'T+', 'P.Fecha', 'F+', 'P.Importe', 'N>Total'
    [object[]] $relations = 'C.Id', 'P.IdCliente', 'L'
    Assert-Done ($query.iSQL20_Crear($Engine, 'Clientes', $false, $columns, 'Clientes C, Pedidos P', $relations)) `
        'iSQL20_Crear'
    Write-Host "Search understood: $(Format-Truth ($query.iSQL20_InterpretarBusqueda('Nombre', 'ana; luis')))"
    [void] $query.iSQL20_AmpliarOrden(2)  # columns count from 1; the answer is always False
    Write-Host "Criterion: $($query.iSQL20_CriterioActual)"
    Write-Host "SQL: $($query.iSQL20_SQL)"
}

function Invoke-Script($Parameters) {
    $commands = "CREATE TABLE Avisos (Numero INTEGER)`r`nGO`r`nDROP TABLE Avisos`r`nGO`r`n"
    $connection = $Parameters.CadenaADO($id, $true)
    # A text to show that is empty comes back as the one that was shown.
    [string] $shown = ''
    $script = New-Object -ComObject QVRlib21.QVRScr
    $ran = $script.EjecutarComandos($id, [int] $Parameters.MotorBD, $commands, $connection, [ref] $shown)
    Write-Host "Script ran: $(Format-Truth $ran)"
    Write-Host "By reference: [$shown]"
}

# A list does not tell the types of its values: who reads it knows them. ValorATexto writes them alike everywhere.
function Show-Properties($Parameters) {
    $list = New-Object -ComObject QVRlib21.QVRprp
    $list.CreaPropiedad('T', 'Titulo', 'Pedidos')
    $list.CreaPropiedad('N', 'Margen', 12.5)
    $list.CreaPropiedad('F', 'Desde', [datetime]::new(2024, 3, 1))
    $kinds = 'T', 'N', 'F'
    for ($i = 0; $i -lt $list.NumPropiedades; $i++) {
        $text = $Parameters.ValorATexto($kinds[$i], $list.Item($i))
        Write-Host "Property ${i}: $($list.NombrePropiedad($i)) = $text"
    }
}

$parameters = Open-Parameters
Show-Query ([int] $parameters.MotorBD)
Invoke-Script $parameters
Show-Properties $parameters
