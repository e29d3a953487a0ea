@echo off
rem Finds or installs the tools, builds the program, and opens its window.
setlocal
call "%~dp0scripts\build.cmd" OFF tallyrex
if errorlevel 1 exit /b 1
echo Tallyrex is open
start "" "%~dp0build\windows-msvc\bin\Tallyrex.exe"
