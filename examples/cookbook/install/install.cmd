@echo off
rem Registers the library of both widths and shows no box:  install.cmd machine|user FOLDER
rem FOLDER has win32 and win64, or one of them. The exit code is that of the regsvr32 that failed, 1 for
rem another first word, 3 where there is no library; 0: all is done.
setlocal
set options=/s
if "%~1"=="machine" goto narrow
if not "%~1"=="user" exit /b 1
set options=/s /n /i:user
:narrow
set narrow=%SystemRoot%\SysWOW64\regsvr32.exe
set wide=%SystemRoot%\System32\regsvr32.exe
if not exist "%narrow%" set narrow=%wide%
if exist "%~2\win32\QVRlib21.dll" goto found
if not exist "%~2\win64\QVRlib21.dll" exit /b 3
goto wide
:found
"%narrow%" %options% "%~2\win32\QVRlib21.dll"
if errorlevel 1 exit /b %errorlevel%
:wide
if not exist "%~2\win64\QVRlib21.dll" exit /b 0
"%wide%" %options% "%~2\win64\QVRlib21.dll"
exit /b %errorlevel%
