#!/bin/bash
# A desktop of its own to run and test the program on: a virtual display, a Wine prefix set up like a
# user's machine, and one desktop kept open so that programs start at once and see each other.
#
#   wine_session.sh start DIR   starts the session that lives in DIR, or does nothing when it runs
#   wine_session.sh env DIR     prints the variables that make a shell use it (DIR/session.env)
#   wine_session.sh stop DIR    ends it, and everything that runs in it
#
# The prefix in DIR is made once. Its registry is put back to how it was then at every start, so no
# session sees what an earlier one left. Sounds that are played go to the files DIR/sound.wav,
# DIR/sound.wav.0001 and so on (VARNEL_SOUND_FILE), one for each time something plays. Where it may
# be made there is an empty disk of 256 KB, VARNEL_SMALL_DISK.
set -euo pipefail

screen=1280x800

fail() {
  echo "wine_session: $*" >&2
  exit 1
}

[ $# -eq 2 ] || fail "usage: wine_session.sh start|stop|env DIR"
script=$(realpath "${BASH_SOURCE[0]}")
tools=$(dirname "$script")
command=$1
mkdir -p "$2"
dir=$(cd "$2" && pwd)
prefix=$dir/prefix
pristine=$dir/pristine
processes=$dir/session.processes
environment=$dir/session.env
log=$dir/session.log
small_disk=$dir/small

# --- processes, known by their number and the moment they started: a number alone may be used again

# Prints nothing for a process that has ended, even if nobody has asked yet how (state Z).
started_at() { sed -n 's/.*) [^Z] //p' "/proc/$1/stat" 2>/dev/null | cut -d' ' -f19; }

remember() {
  [ ! -f "$processes" ] || sed -i "/^$1 /d" "$processes"
  echo "$1 $2 $(started_at "$2")" >>"$processes"
}

lives() {
  local name pid moment
  while read -r name pid moment; do
    if [ "$name" = "$1" ]; then
      [ -n "$moment" ] && [ "$(started_at "$pid")" = "$moment" ]
      return
    fi
  done <"$processes"
  return 1
}

session_lives() {
  [ -f "$processes" ] && [ -f "$environment" ] &&
    lives display && lives server && lives desktop
}

# wait_for SECONDS COMMAND... runs the command until it succeeds; false when the time is over.
wait_for() {
  local tries=$(($1 * 10))
  shift
  until "$@" >/dev/null 2>&1; do
    tries=$((tries - 1))
    [ $tries -gt 0 ] || return 1
    sleep 0.1
  done
}

# Programs started here outlive this script, so they must not hold its input and output.
detached() { setsid "$@" <>"$dir/silence" >>"$log" 2>&1 & }

# --- the display

start_display() {
  local number=$dir/display.number
  rm -f "$number"
  detached Xvfb -displayfd 3 -screen 0 ${screen}x24 -nolisten tcp 3>"$number"
  remember display $!
  wait_for 20 test -s "$number" || fail "no virtual display, see $log"
  DISPLAY=:$(cat "$number")
}

write_environment() {
  cat >"$environment" <<EOF
export DISPLAY='$DISPLAY'
export WINEPREFIX='$prefix'
export WINEDEBUG='-all'
export WINEDLLOVERRIDES='mscoree,mshtml='
export LC_ALL='C.UTF-8'
export XDG_DATA_HOME='$dir/data'
export ALSA_CONFIG_PATH='$dir/sound.conf'
export VARNEL_SOUND_FILE='$dir/sound.wav'
EOF
  cat >"$dir/sound.conf" <<EOF
pcm.!default { type file slave.pcm "nul" file "$dir/sound.wav" format "wav" truncate false }
pcm.nul { type null }
EOF
  rm -f "$dir"/sound.wav*
}

# --- the prefix

# One fixed window is the desktop of all programs, so no window manager is needed; a crash ends the
# program with a failure instead of opening a debugger; common faces have free stand-ins.
stage_settings() {
  cat <<EOF
REGEDIT4

[HKEY_CURRENT_USER\\Software\\Wine\\Explorer]
"Desktop"="Default"

[HKEY_CURRENT_USER\\Software\\Wine\\Explorer\\Desktops]
"Default"="$screen"

[HKEY_CURRENT_USER\\Software\\Wine\\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows NT\\CurrentVersion\\AeDebug]
"Debugger"="false"

[HKEY_CURRENT_USER\\Software\\Wine\\Fonts\\Replacements]
"Arial"="Liberation Sans"
"Consolas"="Liberation Mono"
"Courier New"="Liberation Mono"
"Segoe UI"="Tahoma"
"Times New Roman"="Liberation Serif"
"Verdana"="DejaVu Sans"
EOF
}

# What the prefix depends on; another value means that it has to be made anew.
prefix_recipe() { { wine --version; cat "$script" "$tools/smooth_fonts.py"; } | sha256sum; }

in_prefix() { timeout 180 "$@" </dev/null >>"$log" 2>&1; }

make_prefix() {
  rm -rf "$prefix" "$pristine"
  echo "Preparing a Wine prefix in $dir"
  in_prefix wineboot -i || fail "wineboot failed, see $log"
  # The packaged Wine does not look where its own fonts are installed.
  "$tools/smooth_fonts.py" /usr/share/wine/fonts "$prefix/drive_c/windows/Fonts" ||
    fail "the fonts were not copied"
  stage_settings >"$dir/stage.reg"
  in_prefix wine regedit /S "$dir/stage.reg" || fail "the registry was not set, see $log"
  in_prefix winecfg -v win10 || fail "the version was not set, see $log"
  end_programs
  mkdir "$pristine"
  cp "$prefix"/*.reg "$pristine"
  prefix_recipe >"$pristine/recipe"
}

# --- the whole

# Ends the server of our own prefix and with it every program there, also one left by a lost session.
end_programs() {
  [ -d "$prefix" ] || return 0
  WINEPREFIX=$prefix wineserver -k 2>/dev/null || return 0  # none was running
  WINEPREFIX=$prefix in_prefix wineserver -w || true
}

desktop_is_shown() { xwininfo -root -children | grep -q " $screen+0+0"; }

open_desktop() {
  detached wineserver -f -p
  remember server $!
  # A shell that waits for input for ever: the desktop closes when the last program on it ends.
  detached wine cmd
  remember desktop $!
  wait_for 45 desktop_is_shown
}

start_session() {
  rm -f "$dir/silence"
  mkfifo -m 600 "$dir/silence"
  : >"$log"
  start_display
  write_environment
  start_small_disk
  # shellcheck source=/dev/null
  . "$environment"
  if [ "$(cat "$pristine/recipe" 2>/dev/null)" != "$(prefix_recipe)" ]; then make_prefix; fi
  cp "$pristine"/*.reg "$prefix"
  # On a busy machine the first programs of a server have been seen to wait for the desktop in vain.
  open_desktop || { end_programs && open_desktop; } || fail "the desktop did not come up, see $log"
}

# A disk that is soon full, where this may be made: only root may.
start_small_disk() {
  mkdir -p "$small_disk"
  mountpoint -q "$small_disk" || mount -t tmpfs -o size=256k varnel "$small_disk" 2>/dev/null ||
    return 0
  echo "export VARNEL_SMALL_DISK='Z:$small_disk'" >>"$environment"
}

stop_small_disk() {
  if mountpoint -q "$small_disk" 2>/dev/null; then umount "$small_disk"; fi
}

stop_session() {
  end_programs
  stop_small_disk
  if [ -f "$processes" ] && lives display; then
    kill "$(sed -n 's/^display \([0-9]*\) .*/\1/p' "$processes")"
    wait_for 10 eval '! lives display' || true
  fi
  rm -f "$processes" "$environment" "$dir/silence"
}

case $command in
  start)
    if ! session_lives; then
      stop_session
      trap '[ $? -eq 0 ] || stop_session' EXIT
      start_session
    fi
    ;;
  env)
    session_lives || fail "no session runs in $dir"
    cat "$environment"
    ;;
  stop) stop_session ;;
  *) fail "unknown command $command" ;;
esac
