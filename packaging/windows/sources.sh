# What the scripts that build libraries for Windows share. Sourced by them, from the folder of the checkout.

cross=x86_64-w64-mingw32

# versions_of PACKAGE... : the versions of the sources that these installed packages were made from.
versions_of() {
  # shellcheck disable=SC2016
  dpkg-query --show --showformat='${source:Package}=${source:Version}\n' "$@"
}

# choose_folder NAME FILE... : sets `folder`, where the result for these scripts and the text in `versions` is kept, and
# `work`, where it is made until then. A change to any of them makes another folder.
choose_folder() {
  local name=$1
  shift
  local key
  key=$({
    cat "$@"
    echo "$versions"
  } | sha256sum | cut -c 1-16)
  folder=${XDG_CACHE_HOME:-$HOME/.cache}/ambertask/windows-$name-$key
  work=$folder.work
}

# Whoever comes second waits, and finds the work done.
lock_work() {
  mkdir -p "$work"
  exec 9>"$work/lock"
  flock 9
}

# The lists of source packages are our own: those of the system stay as they are.
source_apt() {
  local lists=$work/apt/lists
  local options=(
    -o "Dir::Etc::sourcelist=$work/apt/debian.sources" -o Dir::Etc::sourceparts=/dev/null
    -o "Dir::State::lists=$lists" -o APT::Sandbox::User=
  )
  if [ ! -e "$work/apt/updated" ]; then
    mkdir -p "$lists/partial"
    cat >"$work/apt/debian.sources" <<'SOURCES'
Types: deb-src
URIs: http://deb.debian.org/debian
Suites: bookworm bookworm-updates
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg

Types: deb-src
URIs: http://deb.debian.org/debian-security
Suites: bookworm-security
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg
SOURCES
    apt-get "${options[@]}" -qq update
    touch "$work/apt/updated"
  fi
  (cd "$work/apt" && apt-get "${options[@]}" -qq source --download-only "$@")
}

# fetch_source SOURCE=VERSION : unpacks it as Debian has patched it, into $work/<source>.
fetch_source() {
  local name=${1%%=*}
  [ ! -e "$work/$name" ] || return 0
  source_apt "$1"
  rm -rf "$work/$name.part"
  dpkg-source --no-check --extract "$work/apt/${name}_"*.dsc "$work/$name.part" >"$work/$name.log" 2>&1
  mv "$work/$name.part" "$work/$name"
}

# fetch_original SOURCE=VERSION : the same as its authors have released it.
fetch_original() {
  local name=${1%%=*}
  [ ! -e "$work/$name" ] || return 0
  source_apt --tar-only "$1"
  rm -rf "$work/$name.part"
  mkdir "$work/$name.part"
  tar -xf "$work/apt/${name}_"*.orig.tar.* -C "$work/$name.part" --strip-components=1
  mv "$work/$name.part" "$work/$name"
}

# keep_result : what lies in $work/result becomes $folder, whole.
keep_result() {
  rm -rf "$folder"
  mv "$work/result" "$folder"
  rm -rf "$work"
}
