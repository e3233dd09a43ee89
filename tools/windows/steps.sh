# shellcheck shell=bash
# What the scripts of this folder share: where things lie, Debian's sources, and steps that are done once.

windows_cache=${XDG_CACHE_HOME:-$HOME/.cache}/verlume-windows
# What the libraries for Windows are installed into; the toolchain file lies there too.
windows_root=$windows_cache/root
toolchain=$windows_root/toolchain.cmake
jobs=${JOBS:-$(nproc)}
mkdir -p "$windows_cache"/{sources,build,logs,stamps} "$windows_root"

# as_root COMMAND...: as root or with sudo.
as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Adds Debian's archive of sources to apt's if none is known yet, and reads what is in it now.
know_sources() {
  local list=/etc/apt/sources.list.d/verlume-sources.sources codename
  # shellcheck disable=SC2016 # $(URI) is apt's.
  if [ -z "$(apt-get indextargets --format '$(URI)' 'Created-By: Sources')" ]; then
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    echo "Adding $list"
    as_root tee "$list" >/dev/null <<TEXT
Types: deb-src
URIs: http://deb.debian.org/debian
Suites: $codename $codename-updates
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg

Types: deb-src
URIs: http://deb.debian.org/debian-security
Suites: $codename-security
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg
TEXT
  fi
  as_root apt-get update -qq || echo "Debian's archive does not answer: going on with what is known of it."
}

# source_versions PACKAGE: the versions of a source package that the archive tells of, the newest first.
source_versions() {
  apt-cache showsrc --only-source "$1" | sed -n 's/^Version: //p' | sort -rV | uniq
}

# fetch_source PACKAGE VERSION FOLDER [--tar-only]: unpacks it there, with Debian's patches or, with
# --tar-only, without. apt checks the signatures. Status 1: the archive does not have it.
fetch_source() {
  local download failed=0
  [ ! -d "$3" ] || return 0
  download=$(mktemp -d "$windows_cache/sources/.download-XXXXXX")
  (cd "$download" && apt-get source -qq -o APT::Sandbox::User=root --download-only "${@:4}" "$1=$2" &&
    if [ $# -eq 3 ]; then
      dpkg-source --no-check -x ./*.dsc unpacked
    else
      mkdir unpacked && tar -xf ./*.orig.tar.* -C unpacked --strip-components=1
    fi >/dev/null && mv unpacked "$3") || failed=1
  rm -rf "$download"
  return $failed
}

# show_progress NAME LOG: writes a step's output into its log, and says from time to time how far it is.
show_progress() {
  local line lines=0 done_of='' began=$SECONDS said=0
  while IFS= read -r line; do
    printf '%s\n' "$line"
    lines=$((lines + 1))
    [[ "$line" =~ ^\[([0-9]+/[0-9]+)\] ]] && done_of="${BASH_REMATCH[1]} files, "
    if [ $((SECONDS - said)) -ge "${PROGRESS_SECONDS:-15}" ]; then
      said=$SECONDS
      echo "  $1: ${done_of:-$lines lines of its log, }$(((SECONDS - began) / 60)) min" >&2
    fi
  done >>"$2"
}

# step NAME PACKAGE: builds the newest version of a source package that can be had, with build_NAME.
step() {
  local version patches
  for patches in '' --tar-only; do
    for version in $(source_versions "$2"); do
      # shellcheck disable=SC2086 # No patches is no word.
      build_once "$1" "$2" "$version" $patches && return
      echo "$1 $version${patches:+ without patches} cannot be fetched." >&2
    done
  done
  echo "Debian's archive does not have the source of $1." >&2
  exit 1
}

# build_once NAME PACKAGE VERSION [--tar-only]: runs the function build_NAME SOURCE in a folder of its own,
# unless the same version has been built by the same function with the same compiler. Status 1: there is no
# such source.
build_once() {
  local name=$1 stamp=$windows_cache/stamps/$1 log=$windows_cache/logs/$1.log wanted source build began=$SECONDS
  wanted="$2 $3 $(x86_64-w64-mingw32-g++-posix -dumpfullversion)
$(declare -f "build_$name")"
  if [ -f "$stamp" ] && [ "$(cat "$stamp")" = "$wanted" ]; then
    echo "$name $3: built before."
    return
  fi
  source=$windows_cache/sources/$name-${3//[:~]/_}
  build=$windows_cache/build/$name-${3//[:~]/_}
  fetch_source "$2" "$3" "$source" "${@:4}" || return 1
  echo "$name $3: building; log in $log"
  mkdir -p "$build"
  date >"$log"
  # A process of its own: "set -e" ends it at the first command that fails, wherever this is called from.
  if ! bash -c "$(declare -p windows_root jobs toolchain); $(declare -f with_cmake "build_$name")
      set -euo pipefail; cd '$build'; build_$name '$source' '$build'" 2>&1 </dev/null |
    show_progress "$name" "$log"; then
    tail -30 "$log" >&2
    echo "$name: failed; the whole log is $log" >&2
    exit 1
  fi
  printf '%s\n' "$wanted" >"$stamp"
  echo "$name $3: done in $(((SECONDS - began) / 60)) min."
}
