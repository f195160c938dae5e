<#
.SYNOPSIS
Looks this machine over for what QVRlib21 needs, and says what to do. Changes nothing and opens no connection.
.DESCRIPTION
The same findings as "qvrscript doctor", for those who have only PowerShell. Run it with the PowerShell of the width
that the application has; the 32-bit one is C:\Windows\SysWOW64\WindowsPowerShell\v1.0\powershell.exe. Exit code 0:
no errors, 1: errors.
.PARAMETER Folder
Where QVRlib21.dll of this width is; without it, win32 or win64 beside this script.
.EXAMPLE
powershell -ExecutionPolicy Bypass -File doctor.ps1
#>
param([string]$Folder = '')

Set-StrictMode -Version 2
$ErrorActionPreference = 'Stop'
$width = [IntPtr]::Size * 8
$systemWidth = 32
if ($env:PROCESSOR_ARCHITECTURE -eq 'AMD64' -or $env:PROCESSOR_ARCHITEW6432 -eq 'AMD64') { $systemWidth = 64 }
$here = Split-Path -Parent $MyInvocation.MyCommand.Path
if ($Folder -eq '') { $Folder = Join-Path $here ('win' + $width) }
$script:errors = 0

$classes = @{
  'QVRlib21.Ov'     = '{88AE9FBC-6D4B-4BA9-80A2-4047614C46A7}'
  'QVRlib21.QVRcfp' = '{B4E0A2A0-2C51-419F-BD8F-57DEC6DFF1E4}'
  'QVRlib21.QVRScr' = '{6DE5A4C3-8FE3-4F71-92FE-614AC0AC1795}'
  'QVRlib21.QVRprp' = '{B988C177-C827-40D6-A593-5FCF12B22492}'
  'QVRlib21.cSQL20' = '{85011860-D958-4D78-88D8-2470229F6C32}'
  'QVRlib21.uSQL20' = '{177DE812-A9F3-4C4F-8A6D-3F234C4314A3}'
}
$typeLibrary = '{5607725A-CE38-4F60-BDB6-A350A7556FCA}'

function Tell([string]$level, [string]$subject, [string]$message, [string]$advice = '') {
  Write-Output ('{0,-7}{1,-15}{2}' -f $level, $subject, $message)
  if ($advice -ne '') { Write-Output ((' ' * 22) + '-> ' + $advice) }
  if ($level -eq 'error') { $script:errors++ }
}

# The default value of a key below the classes of one scope and width; $null for none.
function Get-ClassValue([string]$hive, [int]$bits, [string]$key) {
  $view = [Microsoft.Win32.RegistryView]::Registry32
  if ($bits -eq 64) { $view = [Microsoft.Win32.RegistryView]::Registry64 }
  $base = [Microsoft.Win32.RegistryKey]::OpenBaseKey($hive, $view)
  try {
    $opened = $base.OpenSubKey('Software\Classes\' + $key)
    if ($null -eq $opened) { return $null }
    try { return $opened.GetValue('') } finally { $opened.Close() }
  } finally { $base.Close() }
}

# 32 or 64; 0 where the file is no library.
function Get-FileWidth([string]$path) {
  $reader = New-Object System.IO.BinaryReader ([System.IO.File]::Open($path, 'Open', 'Read', 'Read'))
  try {
    if ($reader.BaseStream.Length -lt 64 -or $reader.ReadUInt16() -ne 0x5A4D) { return 0 }
    $null = $reader.BaseStream.Seek(0x3C, 'Begin')
    $null = $reader.BaseStream.Seek($reader.ReadInt32() + 4, 'Begin')
    $machine = $reader.ReadUInt16()
    if ($machine -eq 0x14C) { return 32 }
    if ($machine -eq 0x8664) { return 64 }
    return 0
  } catch { return 0 } finally { $reader.Close() }
}

function Get-FileVersion([string]$path) {
  $info = [System.Diagnostics.FileVersionInfo]::GetVersionInfo($path)
  return '{0}.{1}.{2}' -f $info.FileMajorPart, $info.FileMinorPart, $info.FileBuildPart
}

function Get-RegisterCommand([int]$bits, [string]$scope, [string]$path) {
  $system = '%SystemRoot%\System32\'
  if ($systemWidth -eq 64 -and $bits -eq 32) { $system = '%SystemRoot%\SysWOW64\' }
  $option = ''
  if ($scope -eq 'user') { $option = '/n /i:user ' }
  return $system + 'regsvr32.exe ' + $option + '"' + $path + '"'
}

function Test-Library([string]$path) {
  if (-not (Test-Path -LiteralPath $path)) {
    Tell 'note' 'library' "There is no $path" 'Tell the folder of the library with -Folder.'
    return
  }
  $bits = Get-FileWidth $path
  if ($bits -ne $width) {
    Tell 'error' 'library' "$path is for $bits-bit programs, and this PowerShell has $width-bit" `
      'Keep the files of win32 and win64 in folders of their own, as they were packed.'
    return
  }
  Tell 'ok' 'library' ("$path, version " + (Get-FileVersion $path))
}

function Test-Scope([string]$hive, [string]$scope, [int]$bits, [string]$own) {
  $files = @($classes.Values | ForEach-Object { Get-ClassValue $hive $bits "CLSID\$_\InprocServer32" } |
    Where-Object { $null -ne $_ })
  if ($files.Count -eq 0) { return $false }
  $hosts = "$bits-bit programs, for the ${scope}:"
  $file = $files[0]
  $again = Get-RegisterCommand $bits $scope $own
  if (-not (Test-Path -LiteralPath $file)) {
    Tell 'error' 'registration' "$hosts leads to $file, which is not there" `
      "Register the library where it is now: $again"
  } elseif ((Get-FileWidth $file) -ne $bits) {
    Tell 'error' 'registration' "$hosts leads to $file, which is no library for $bits-bit programs" `
      "Register the right one: $again"
  } elseif ($files.Count -lt $classes.Count -or @($files | Select-Object -Unique).Count -ne 1) {
    Tell 'error' 'registration' "$hosts not whole" ('Register it again: ' + (Get-RegisterCommand $bits $scope $file))
  } elseif ((Test-Path -LiteralPath $own) -and (Get-FileVersion $own) -ne (Get-FileVersion $file)) {
    Tell 'error' 'registration' ("$hosts $file has version " + (Get-FileVersion $file)) `
      "Register the one that is meant: $again"
  } else {
    Tell 'ok' 'registration' ("$hosts $file, version " + (Get-FileVersion $file))
  }
  return $true
}

function Test-Registration([string]$own) {
  foreach ($bits in 32, 64) {
    if ($bits -gt $systemWidth) { continue }
    $path = $own
    if ($bits -ne $width) { $path = Join-Path (Split-Path -Parent $Folder) "win$bits\QVRlib21.dll" }
    $there = $false
    foreach ($place in @(@('CurrentUser', 'user'), @('LocalMachine', 'machine'))) {
      # What a function writes and what it answers come out together: the last one is the answer.
      $told = @(Test-Scope $place[0] $place[1] $bits $path)
      $told | Where-Object { $_ -isnot [bool] } | Write-Output
      if ($told[-1]) { $there = $true }
    }
    if ($there) { continue }
    $level = 'error'
    if ($bits -ne $width -or (Test-Path -LiteralPath (Join-Path $Folder 'QVRlib21.SxS.manifest'))) { $level = 'note' }
    Tell $level 'registration' "Not registered for $bits-bit programs" `
      ('Where scripts or programs without a manifest are to use it: ' + (Get-RegisterCommand $bits 'user' $path))
  }
  foreach ($name in ($classes.Keys | Sort-Object)) {
    $named = $false; $server = $false
    foreach ($hive in 'CurrentUser', 'LocalMachine') {
      foreach ($bits in 32, 64) {
        if ($null -ne (Get-ClassValue $hive $bits "$name\CLSID")) { $named = $true }
        if ($null -ne (Get-ClassValue $hive $bits "CLSID\$($classes[$name])\InprocServer32")) { $server = $true }
      }
    }
    if ($named -and -not $server) {
      Tell 'error' 'registration' "$name is a name without a class" 'Register and unregister the library once.'
    }
  }
}

function Test-TypeLibrary {
  foreach ($hive in 'CurrentUser', 'LocalMachine') {
    $file = Get-ClassValue $hive $width "TypeLib\$typeLibrary\1.1\0\win$width"
    if ($null -eq $file) { continue }
    if (Test-Path -LiteralPath $file) { Tell 'ok' 'type library' "1.1, $file" }
    else { Tell 'error' 'type library' "leads to $file, which is not there" 'Register the library where it is now.' }
    return
  }
  Tell 'note' 'type library' 'Not registered' `
    'Only programs bound early across apartments and development tools need it: register the library for them.'
}

function Test-Ado {
  try {
    $connection = New-Object -ComObject 'ADODB.Connection'
    Tell 'ok' 'ado' ('ADODB.Connection, version ' + $connection.Version)
  } catch {
    Tell 'error' 'ado' "ADODB.Connection cannot be created for $width-bit programs" `
      "Repair Windows' components (sfc /scannow): ADO is one of them."
  }
}

function Test-Provider([string]$name) {
  foreach ($hive in 'CurrentUser', 'LocalMachine') {
    $id = Get-ClassValue $hive $width "$name\CLSID"
    if ($null -ne $id -and $null -ne (Get-ClassValue $hive $width "CLSID\$id\InprocServer32")) { return $true }
  }
  return $false
}

function Test-Providers {
  $engines = @(
    @('Jet', @('Microsoft.Jet.OLEDB.4.0', 'Microsoft.ACE.OLEDB.12.0', 'Microsoft.ACE.OLEDB.16.0'),
      'install the Access Database Engine of this width; Jet 4.0 is there for 32-bit programs only.'),
    @('SQL Server', @('SQLOLEDB', 'MSOLEDBSQL', 'MSOLEDBSQL19', 'SQLNCLI11'),
      'install the OLE DB Driver for SQL Server.'),
    @('Oracle', @('MSDAORA', 'OraOLEDB.Oracle'), "install Oracle's client of this width with OraOLEDB."),
    @('ODBC', @('MSDASQL'), "repair Windows' components.")
  )
  $any = $false
  foreach ($engine in $engines) {
    $there = @($engine[1] | Where-Object { Test-Provider $_ })
    if ($there.Count -gt 0) {
      $any = $true
      Tell 'ok' 'providers' ($engine[0] + ': ' + ($there -join ', '))
    } else {
      Tell 'note' 'providers' ($engine[0] + ": none for $width-bit programs") `
        ('Only where this engine is used: ' + $engine[2])
    }
  }
  if (-not $any) {
    Tell 'error' 'providers' "No provider at all for $width-bit programs" `
      'Install the provider of the engine that the application uses, in this width.'
  }
}

function Test-Components {
  foreach ($name in 'QVRServicios.ProteccionTexto', 'QVRServicios.InformeErrores', 'QVRServicios.LectorScripts') {
    if ($null -eq [Type]::GetTypeFromProgID($name)) {
      Tell 'ok' 'components' "$name is not registered: the library's own part does its work"
      continue
    }
    try {
      $null = New-Object -ComObject $name
      Tell 'ok' 'components' "$name is registered and used"
    } catch {
      $level = 'error'
      if ($name -eq 'QVRServicios.InformeErrores') { $level = 'note' }
      Tell $level 'components' "$name is registered and cannot be created" `
        "Install it again for $width-bit programs, or unregister it."
    }
  }
}

function Test-Language {
  $setting = Get-ItemProperty -Path 'HKCU:\Software\VB and VBA Program Settings\QVR\Idioma' -ErrorAction SilentlyContinue
  $value = $null
  if ($null -ne $setting -and $null -ne $setting.PSObject.Properties['IdiomaOmision']) { $value = $setting.IdiomaOmision }
  if ($null -eq $value) { Tell 'ok' 'language' ("By the user's regional format, " + (Get-Culture).Name) }
  elseif ('0', '1', '2', '3' -contains $value) { Tell 'ok' 'language' "By the setting QVR\Idioma\IdiomaOmision, $value" }
  else {
    Tell 'note' 'language' "The setting QVR\Idioma\IdiomaOmision is $value, which no catalogue has" `
      'Set it to 0 for Spanish, 1 for English, 3 for French.'
  }
}

function Test-Desktop {
  if ([Environment]::UserInteractive) { Tell 'ok' 'desktop' 'Message boxes can be seen here' }
  else {
    Tell 'note' 'desktop' 'Nobody sees message boxes here: questions are answered No' `
      "Run the application in a user's session where somebody is to answer."
  }
}

$library = Join-Path $Folder 'QVRlib21.dll'
Tell 'ok' 'process' ("PowerShell $($PSVersionTable.PSVersion), $width-bit, on Windows $([Environment]::OSVersion.Version) ($systemWidth-bit)")
Test-Library $library
Test-Registration $library
Test-TypeLibrary
Test-Ado
Test-Providers
Test-Components
Test-Language
Test-Desktop
if ($script:errors -eq 0) { Write-Output 'no errors' } else { Write-Output "$($script:errors) error(s)" }
exit [int]($script:errors -gt 0)
