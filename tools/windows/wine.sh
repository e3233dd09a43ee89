# shellcheck shell=bash
# A Windows of its own for tests: Wine, with a prefix that nothing else uses. Sourced behind steps.sh.

export WINEPREFIX=${VERLUME_WINE_PREFIX:-$windows_cache/wine}
export WINEDEBUG=${WINEDEBUG:--all}
# Neither its browser nor its .NET are installed.
export WINEDLLOVERRIDES='mscoree,mshtml='

# Debian has no Arial; Liberation Sans has its measures. Without this Wine takes a serif font.
replace_font() {
  wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$1" /d "$2" /f >/dev/null
}

# Makes the prefix. Needs a display.
prepare_wine() {
  tools/install_packages wine wine64 fonts-wine fonts-liberation fonts-dejavu-core xvfb xauth openbox
  [ ! -f "$WINEPREFIX/prepared" ] || return 0
  rm -rf "$WINEPREFIX"
  tools/virtual_display wineboot --init >/dev/null 2>&1
  wine winecfg -v win10
  # Debian's Wine does not look where Debian installs them.
  cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
  replace_font Arial 'Liberation Sans'
  replace_font 'Times New Roman' 'Liberation Serif'
  replace_font 'Courier New' 'Liberation Mono'
  replace_font 'Segoe UI' Tahoma
  # A crash ends the program, and asks nobody.
  wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null
  # Without a tray on the display Wine opens a window for the icons, which takes the keyboard.
  wine reg add 'HKCU\Software\Wine\X11 Driver' /v ShowSystray /d N /f >/dev/null
  wineserver --wait
  touch "$WINEPREFIX/prepared"
}
