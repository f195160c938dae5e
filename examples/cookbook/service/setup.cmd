@echo off
rem Installs night_service, as administrator:  setup.cmd FOLDER SCRIPT LOG
rem FOLDER has night_service.exe and the connection file cuentas.cfp.
setlocal
set report=HKLM\Software\Classes\QVRServicios.InformeErrores\CLSID
reg add %report% /ve /d {6E2C7B0A-51D3-4C0E-9B1A-8F24D5A3C617} /f
if errorlevel 1 exit /b %errorlevel%
sc create Cuentas binPath= "\"%~1\night_service.exe\" \"%~1\" cuentas \"%~2\" \"%~3\""
exit /b %errorlevel%
