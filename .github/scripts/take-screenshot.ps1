# Saves what the screen shows as a PNG file, once a window of Tallyrex is there:  take-screenshot.ps1 PICTURE.png
param([Parameter(Mandatory)][string]$Picture)
$ErrorActionPreference = 'Stop'
Add-Type -AssemblyName System.Drawing, System.Windows.Forms

$end = (Get-Date).AddSeconds(30)
while (-not (Get-Process Tallyrex -ErrorAction SilentlyContinue | Where-Object MainWindowHandle)) {
  if ((Get-Date) -gt $end) { throw 'The window of Tallyrex did not open' }
  Start-Sleep -Milliseconds 200
}
New-Item -ItemType Directory -Force (Split-Path $Picture) | Out-Null
$area = [System.Windows.Forms.Screen]::PrimaryScreen.Bounds
$bitmap = [System.Drawing.Bitmap]::new($area.Width, $area.Height)
[System.Drawing.Graphics]::FromImage($bitmap).CopyFromScreen($area.Location, [System.Drawing.Point]::Empty, $area.Size)
$bitmap.Save((Join-Path (Get-Location) $Picture))
