#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a Windows program under Wine, without a display and with a Windows folder of the build's own.
# Usage: under_wine.sh PROGRAM [ARGUMENT...]
set -euo pipefail

# Debian's package wine64 puts the loader here; its own command comes with another package.
loader=/usr/lib/wine/wine64
[ -x $loader ] || { echo "under_wine.sh: there is no Wine here (package wine64)" >&2; exit 127; }

WINEPREFIX=$(readlink -f "$(dirname "$0")/..")/out/wine
# Neither web pages nor .NET, no menu entries on this machine's desktop.
export WINEPREFIX WINELOADER=$loader WINEDEBUG=-all WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
unset DISPLAY WAYLAND_DISPLAY
exec $loader "$@"
