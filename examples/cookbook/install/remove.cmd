@echo off
rem Takes the registration away again, before the files:  remove.cmd machine|user FOLDER
setlocal
set options=/s /u
if "%~1"=="machine" goto narrow
if not "%~1"=="user" exit /b 1
set options=/s /u /n /i:user
:narrow
set narrow=%SystemRoot%\SysWOW64\regsvr32.exe
set wide=%SystemRoot%\System32\regsvr32.exe
if not exist "%narrow%" set narrow=%wide%
if exist "%~2\win32\QVRlib21.dll" "%narrow%" %options% "%~2\win32\QVRlib21.dll"
if exist "%~2\win64\QVRlib21.dll" "%wide%" %options% "%~2\win64\QVRlib21.dll"
exit /b %errorlevel%
