@echo off
rem Finds or installs the tools, builds everything, and runs every test.
setlocal
call "%~dp0scripts\build.cmd" ON
if errorlevel 1 exit /b 1
cd /d "%~dp0"
if exist build\results rmdir /s /q build\results
mkdir build\results
ctest --preset windows-msvc --no-tests=error --timeout 300 --test-output-size-passed 1000000 --test-output-size-failed 1000000 --output-junit "%cd%\build\results\windows-msvc.xml" >build\results\windows-msvc.log 2>&1
python -B scripts\tally.py build\results\windows-msvc.xml
exit /b %errorlevel%
