@echo off
rem Finds or installs the tools, builds everything, and runs every test:  test.cmd [/Y]
rem The tests take over the keyboard, the mouse and the clipboard, so it asks first; /Y answers for you.
rem tests\README.md lists what they change and put back.
setlocal
if /i "%~1"=="/Y" goto build
echo The tests take over the keyboard, the mouse and the clipboard for several minutes. They open and close windows of
echo Tallyrex and Notepad, and change colors of Windows; run as administrator, also values in the machine's registry.
echo They put everything back. If they are killed, the next run does; Ctrl+C is safe.
echo Save your work, close Tallyrex and Notepad, and leave the computer alone until the last line is printed.
choice /c YN /m "Start now"
if errorlevel 2 exit /b 1
:build
call "%~dp0scripts\build.cmd" ON
if errorlevel 1 exit /b 1
cd /d "%~dp0"
if exist build\results rmdir /s /q build\results
mkdir build\results
echo Running the tests; the complete output goes to build\results\windows-msvc.log
ctest --preset windows-msvc --no-tests=error --timeout 300 --progress --test-output-size-passed 1000000 --test-output-size-failed 1000000 --output-log "%cd%\build\results\windows-msvc.log" --output-junit "%cd%\build\results\windows-msvc.xml"
python -B scripts\tally.py build\results\windows-msvc.xml
exit /b %errorlevel%
