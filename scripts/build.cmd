@echo off
rem Finds or installs the tools, then builds with them:  scripts\build.cmd ON/OFF [TARGET...]
rem ON builds the tests too, and lets a warning stop the build. The tests need vcpkg (VCPKG_ROOT) or a MinGW with
rem GoogleTest and nlohmann-json.
rem TALLYREX_TOOLCHAIN=msvc or mingw chooses the compiler; without it, Visual Studio is preferred.
cd /d "%~dp0.."
set tests=%1
set targets=
set toolchain=
set winget=winget install --exact --accept-package-agreements --accept-source-agreements --disable-interactivity
shift
:nextTarget
if "%~1"=="" goto findCompiler
set targets=%targets% %1
shift
goto nextTarget

:findCompiler
if /i "%TALLYREX_TOOLCHAIN%"=="mingw" goto findMinGW
where cl >nul 2>nul
if not errorlevel 1 goto findCMake
call :useVisualStudio
where cl >nul 2>nul
if not errorlevel 1 goto findCMake
if /i "%TALLYREX_TOOLCHAIN%"=="msvc" goto installVisualStudio
where g++ >nul 2>nul
if not errorlevel 1 goto useMinGW
:installVisualStudio
echo Installing the compiler, CMake and Ninja (Visual Studio Build Tools, by winget)
%winget% --id Microsoft.VisualStudio.2022.BuildTools --override "--wait --passive --add Microsoft.VisualStudio.Workload.VCTools --includeRecommended"
call :useVisualStudio
where cl >nul 2>nul
if not errorlevel 1 goto findCMake
echo No C++ compiler was found: install Visual Studio with "Desktop development with C++".
exit /b 1

:findMinGW
where g++ >nul 2>nul
if errorlevel 1 goto noMinGW
:useMinGW
set CXX=g++
set toolchain=-DCMAKE_EXE_LINKER_FLAGS=-static

:findCMake
where cmake >nul 2>nul
if errorlevel 1 goto noCMake
where ninja >nul 2>nul
if errorlevel 1 goto installNinja
rem The alias of the Microsoft Store is called python too, and starts nothing.
python --version >nul 2>nul
if errorlevel 1 goto installPython
if "%tests%"=="OFF" goto configureOnce
if defined CXX goto configure
if not defined VCPKG_ROOT goto noVcpkg
rem vcpkg installs what vcpkg.json names while CMake configures.
set toolchain="-DCMAKE_TOOLCHAIN_FILE=%VCPKG_ROOT%\scripts\buildsystems\vcpkg.cmake" -DVCPKG_TARGET_TRIPLET=x64-windows-static
rem A build that was configured without vcpkg does not take it up later.
findstr /c:"vcpkg.cmake" build\windows-msvc\CMakeCache.txt >nul 2>nul
if errorlevel 1 if exist build\windows-msvc\CMakeCache.txt del build\windows-msvc\CMakeCache.txt
goto configure

:configureOnce
if exist build\windows-msvc\build.ninja goto build
:configure
cmake --preset windows-msvc -DTALLYREX_TESTS=%tests% -DTALLYREX_WARNINGS_AS_ERRORS=%tests% %toolchain%
if errorlevel 1 exit /b 1
:build
if not defined targets cmake --build --preset windows-msvc
if defined targets cmake --build --preset windows-msvc --target%targets%
exit /b %errorlevel%

:noCMake
echo CMake was not found: install it, or the C++ CMake tools of Visual Studio.
exit /b 1

:noMinGW
echo TALLYREX_TOOLCHAIN asks for MinGW, but there is no g++ on the path.
exit /b 1

:installNinja
echo Installing Ninja (by winget)
%winget% --id Ninja-build.Ninja
goto openAnotherPrompt

:installPython
echo Installing Python (by winget)
%winget% --id Python.Python.3.13
goto openAnotherPrompt

:openAnotherPrompt
if errorlevel 1 exit /b 1
echo It is on the path of the next command prompt: open one, and run this command again.
exit /b 1

:noVcpkg
echo The tests need GoogleTest and nlohmann-json: set VCPKG_ROOT to a vcpkg that can install them.
exit /b 1

:useVisualStudio
set "vswhere=%ProgramFiles(x86)%\Microsoft Visual Studio\Installer\vswhere.exe"
if not exist "%vswhere%" exit /b 0
set studio=
for /f "usebackq delims=" %%i in (`"%vswhere%" -latest -products * -requires Microsoft.VisualStudio.Component.VC.Tools.x86.x64 -property installationPath`) do set "studio=%%i"
if defined studio call "%studio%\VC\Auxiliary\Build\vcvars64.bat" >nul
exit /b 0
