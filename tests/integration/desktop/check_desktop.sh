#!/usr/bin/env bash
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# Checks what an installation puts on a desktop. Nothing outside the build tree is written.
#   check_desktop.sh CHECK SOURCE BUILD VERSION
# Ends with 77 where a tool that the check needs is not installed.
set -euo pipefail
export LC_ALL=C.UTF-8
umask 022

check=$1 source=$2 build=$3 version=$4
work=$build/tests/desktop/work
tree=$work/tree                      # what cmake installs
package=$build/tests/desktop/package # what cpack makes
unpacked=$package/unpacked
event_type=application/x-velquon-event

failures=0
fail() {
  echo "FAILED: $*" >&2
  failures=$((failures + 1))
}
need() {
  local tool
  for tool in "$@"; do
    command -v "$tool" >/dev/null || { echo "skipped: $tool is not installed"; exit 77; }
  done
}
same() {  # same WHAT EXPECTED ACTUAL
  [ "$2" = "$3" ] || fail "$1: expected '$2', got '$3'"
}
fresh_folder() {
  rm -rf "$1"
  mkdir -p "$1"
}
page_text() {  # page_text NAME: the roff source of an installed manual page
  zcat "$tree/usr/share/man/man1/$1.1.gz"
}
# Without the tools that make it there is no package to look at either.
need_package() {
  [ -d "$package" ] || { echo "skipped: no package was made"; exit 77; }
}
the_package() {
  echo "$package"/velquon_"$version"_*.deb
}

check_install() {
  fresh_folder "$work"
  DESTDIR=$tree "$CMAKE_COMMAND" --install "$build" --prefix /usr >"$work/install.log"
  [ -x "$tree/usr/bin/velquon" ] || fail "the program is not installed"
}

check_entry() {
  need desktop-file-validate
  local entry=$tree/usr/share/applications/velquon.desktop
  desktop-file-validate "$entry" || fail "desktop-file-validate"
  # The window's name for its starter, as the program tells it to the desktop.
  grep -q 'setDesktopFileName(QStringLiteral("velquon"))' "$source/app/desktop.cpp" ||
    fail "the program names another desktop file"
  local program
  program=$(sed -n 's/^Exec=\([^ ]*\).*/\1/p' "$entry")
  [ -x "$tree/usr/bin/$program" ] || fail "Exec names '$program', which is not installed"
}

check_metainfo() {
  need appstreamcli
  appstreamcli validate --no-net "$tree/usr/share/metainfo/org.velquon.velquon.metainfo.xml" ||
    fail "appstreamcli validate"
  appstreamcli validate-tree --no-net "$tree" || fail "appstreamcli validate-tree"
}

check_mime_file() {
  need xmllint
  local known=/usr/share/mime/packages/freedesktop.org.xml
  [ -r "$known" ] || { echo "skipped: shared-mime-info is not installed"; exit 77; }
  sed '1,/^<!DOCTYPE mime-info \[/d; /^\]>/,$d' "$known" >"$work/mime-info.dtd"
  grep -q '<!ELEMENT mime-info' "$work/mime-info.dtd" || fail "found no rules in $known"
  xmllint --noout --dtdvalid "$work/mime-info.dtd" "$tree/usr/share/mime/packages/velquon.xml" ||
    fail "xmllint"
}

# A home with the installed file type and starter in it.
make_home() {
  need update-mime-database gio
  home=$work/home.$1
  fresh_folder "$home/share/mime/packages"
  mkdir -p "$home/config" "$home/share/applications"
  cp "$tree/usr/share/mime/packages/velquon.xml" "$home/share/mime/packages/"
  cp "$tree/usr/share/applications/velquon.desktop" "$home/share/applications/"
  export HOME=$home XDG_DATA_HOME=$home/share XDG_CONFIG_HOME=$home/config XDG_DATA_DIRS=/usr/share
  update-mime-database "$home/share/mime" 2>"$home/complaints" || fail "update-mime-database"
  [ ! -s "$home/complaints" ] || fail "update-mime-database: $(cat "$home/complaints")"
}

typed() {  # typed EXPECTED FILE, where a leading ! means any other type
  local found
  found=$(gio info -a standard::content-type "$2" | sed -n 's/^ *standard::content-type: //p')
  case $1 in
    !*)
      if [ -z "$found" ] || [ "$found" = "${1#!}" ]; then
        fail "${2##*/} is taken for '$found'"
      fi
      ;;
    *) same "the type of ${2##*/}" "$1" "$found" ;;
  esac
}

zeros() { head -c "$1" /dev/zero; }

# event_with HIGH LOW [FOURTH [CODE]]: one point record behind a count of the two bytes given, its
# fourth coordinate 1.0 and its code 3 unless told otherwise.
event_with() {
  printf %b "P\\x$1\\x$2"
  zeros 24
  printf %b "${3:-\\x3f\\xf0}"
  zeros 14
  printf %b "${4:-\\x00\\x03}"
  zeros 78
}

# pc_event_with LOW HIGH UPPER [FOURTH [CODE]]: the same in the PC edition's layout.
pc_event_with() {
  printf W
  zeros 48
  printf %b "\\x$1\\x$2\\x$3\\x00"
  zeros 30
  printf %b "${4:-\\xf0\\x3f}"
  zeros 8
  printf %b "${5:-\\x03\\x00}"
  zeros 6
}

check_event_types() {
  make_home types
  local files=$work/typed
  fresh_folder "$files"
  "$tree/usr/bin/velquon-events" --type mu+ --seed 1 --format cwd --output "$files" 2>/dev/null
  mv "$files/event-000001.cwd" "$files/event-1.cwd"
  cp "$files/event-1.cwd" "$files/EVENT.CWD"
  cp "$files/event-1.cwd" "$files/event"
  echo 'any text' >"$files/named.cwd"
  local name
  for name in event-1.cwd EVENT.CWD event named.cwd; do
    typed $event_type "$files/$name"
  done

  # By content alone, at the ends of every stretch of counts. 1388 is 5000.
  for name in 0001 0002 00ff 0100 0350 07ff 0800 090a 0fff 1000 11ff 1200 1300 137f 1380 1387 \
    1388; do
    event_with ${name:0:2} ${name:2} >"$files/points-$name"
    typed $event_type "$files/points-$name"
    pc_event_with ${name:2} ${name:0:2} 00 >"$files/pc-points-$name"
    typed $event_type "$files/pc-points-$name"
  done
  for name in 0000 1389 138f 1390 1400 2000 7fff 8000 ffff; do
    event_with ${name:0:2} ${name:2} >"$files/refused-$name"
    typed !$event_type "$files/refused-$name"
    pc_event_with ${name:2} ${name:0:2} 00 >"$files/pc-refused-$name"
    typed !$event_type "$files/pc-refused-$name"
  done
  pc_event_with 01 00 01 >"$files/pc-refused-65537"
  typed !$event_type "$files/pc-refused-65537"

  # Either mark of a point is enough, and without both it is none.
  event_with 00 10 '\x00\x00' >"$files/small-code"
  event_with 00 10 '\x3f\xf0' '\x01\x00' >"$files/fourth-coordinate"
  event_with 00 10 '\x00\x00' '\x01\x00' >"$files/no-point"
  pc_event_with 10 00 00 '\x00\x00' >"$files/pc-small-code"
  pc_event_with 10 00 00 '\xf0\x3f' '\x00\x01' >"$files/pc-fourth-coordinate"
  pc_event_with 10 00 00 '\x00\x00' '\x00\x01' >"$files/pc-no-point"
  for name in small-code fourth-coordinate pc-small-code pc-fourth-coordinate; do
    typed $event_type "$files/$name"
  done
  typed !$event_type "$files/no-point"
  typed !$event_type "$files/pc-no-point"

  # What begins with the same letters and is something else.
  local text='Particles leave tracks in a chamber, which a magnetic field bends into a helix; '
  text+='neutral ones leave none until they decay, and photons none until they make a pair.'
  echo "$text" >"$files/particles"
  echo "W$text" >"$files/w-text"
  printf 'P\n\n%s\n' "$text" >"$files/title"
  printf 'W\t\n%s\n' "$text" >"$files/w-title"
  for name in particles w-text title w-title; do
    typed text/plain "$files/$name"
  done
  iconv -f UTF-8 -t UTF-16LE <<<"$text" >"$files/wide"
  iconv -f UTF-8 -t UTF-16LE <<<"W$text" >"$files/w-wide"
  typed !$event_type "$files/wide"
  typed !$event_type "$files/w-wide"
}

check_default_program() {
  make_home program
  need update-desktop-database
  update-desktop-database "$home/share/applications" || fail "update-desktop-database"
  local answer
  answer=$(PATH=$tree/usr/bin:$PATH gio mime $event_type)
  same "the program for event files" "velquon.desktop" \
    "$(sed -n '1s/.*: \(.*\)$/\1/p' <<<"$answer")"
}

check_icons() {
  need file
  local icons=$tree/usr/share/icons/hicolor size name
  same "Icon of the starter" velquon \
    "$(sed -n 's/^Icon=//p' "$tree/usr/share/applications/velquon.desktop")"
  for name in apps/velquon mimetypes/${event_type/\//-}; do
    for size in 16 32 48 64 128 256; do
      file --brief "$icons/${size}x$size/$name.png" | grep -q "^PNG image data, $size x $size, " ||
        fail "$name.png is not $size pixels wide and high"
    done
    file --brief "$icons/scalable/$name.svg" | grep -q '^SVG' || fail "$name.svg"
  done
}

pages=(velquon velquon-events)

check_manuals() {
  need man
  local page complaints
  for page in "${pages[@]}"; do
    complaints=$(MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z \
      "$tree/usr/share/man/man1/$page.1.gz" 2>&1 >/dev/null)
    [ -z "$complaints" ] || fail "$page: $complaints"
  done
}

check_manuals_strict() {
  need mandoc
  local page
  for page in "${pages[@]}"; do
    mandoc -Tlint -Wstyle "$tree/usr/share/man/man1/$page.1.gz" || fail "$page"
  done
}

# The long options that a page's section names are those that the program's help names.
check_manual_options() {
  local page helped named
  for page in "${pages[@]}"; do
    helped=$("$tree/usr/bin/$page" --help | grep -oE '(^|[ ,])--[a-z]+' | tr -d ' ,' | sort -u)
    [ "$(wc -l <<<"$helped")" -ge 4 ] || fail "$page --help names too few options"
    named=$(page_text "$page" | sed -n '/^\.SH OPTIONS/,/^\.SH "*[^O]/p' |
      grep -A1 '^\.T[PQ]' | grep -oE '\\-\\-[a-z]+' | sed 's/\\//g' | sort -u)
    same "options of $page" "$helped" "$named"
  done
}

# The examples of the page without a screen do what the page says.
check_manual_examples() {
  local folder=$work/examples counts
  fresh_folder "$folder"
  page_text velquon-events |
    sed -n '/^\.SH EXAMPLES/,$!d; /^\.EX/,/^\.EE/{/^\.E/d; s/^\$ //; s/\\-/-/g; s/\\(aq/'"'"'/g; s/\\e$/\\/; p}' \
    >"$folder/examples.sh"
  counts=$(cd "$folder" && PATH=$tree/usr/bin:$PATH bash -euo pipefail examples.sh) ||
    fail "an example ends with an error"
  same "the table's header" event,point,x,y,z,code "$(head -n 1 "$folder/event.csv")"
  [ "$(wc -l <"$folder/event.csv")" -gt 2 ] || fail "the table has no points"
  compgen -G "$folder/lambdas/event-000*.cwd" >/dev/null || fail "no event files were made"
  grep -q '^  "events": 1000,$' "$folder/pions.json" || fail "the summaries do not add up"
  grep -qE '^1 [0-9]+$' <<<"$counts" || fail "no points were counted"
}

check_versions() {
  local page
  for page in "${pages[@]}"; do
    same "version of $page" "$page $version" "$("$tree/usr/bin/$page" --version)"
    page_text "$page" | head -n 1 | grep -qF "\"Velquon $version\"" || fail "version in $page.1"
  done
  zcat "$tree/usr/share/doc/velquon/changelog.gz" | head -n 1 | grep -qF "velquon ($version) " ||
    fail "version in the changelog"
  grep -qF "<release version=\"$version\" " \
    "$tree/usr/share/metainfo/org.velquon.velquon.metainfo.xml" || fail "version in the metainfo"
}

check_make_package() {
  rm -rf "$package"
  need dpkg-shlibdeps dpkg-deb
  mkdir -p "$package"
  (cd "$build" && "$(dirname "$CMAKE_COMMAND")/cpack" -G DEB -B "$package") \
    >"$package/cpack.log" 2>&1 || { tail -n 20 "$package/cpack.log" >&2; fail "cpack"; }
  [ -s "$(the_package)" ] || fail "there is no package"
  fresh_folder "$unpacked"
  dpkg-deb -x "$(the_package)" "$unpacked"
}

expected_files() {
  local document
  {
    cat "$source/tests/integration/desktop/package_files.txt"
    for document in README.md CHANGELOG.md; do
      [ ! -e "$source/$document" ] || echo "/usr/share/doc/velquon/$document"
    done
  } | sort
}

check_package_files() {
  need_package
  local actual
  actual=$(dpkg-deb -c "$(the_package)" | grep -v '^d' | sed 's/.* \.\//\//' | sort)
  diff <(expected_files) - <<<"$actual" || fail "the package holds other files"
  local modes='^(drwxr-xr-x root/root .*/|-rw-r--r-- root/root .*'
  modes+='|-rwxr-xr-x root/root .* \./usr/(bin|share/velquon)/[^/]*)$'
  ! dpkg-deb -c "$(the_package)" | grep -vE "$modes" || fail "owners or modes"
}

# Installs into a folder with a package database of its own, and removes again.
check_package_installs() {
  need_package
  [ "$(id -u)" -eq 0 ] || { echo "skipped: dpkg wants to be root here"; exit 77; }
  local root=$package/root left
  local dpkg=(dpkg --root="$root" --log=/dev/null --force-depends --no-triggers)
  fresh_folder "$root"
  mkdir -p "$root/var/lib/dpkg/info" "$root/var/lib/dpkg/updates"
  : >"$root/var/lib/dpkg/status"
  "${dpkg[@]}" -i "$(the_package)" >"$package/dpkg.log" 2>&1 ||
    { cat "$package/dpkg.log" >&2; fail "dpkg -i"; }
  diff <(expected_files) <(find "$root/usr" ! -type d -printf '/usr/%P\n' | sort) ||
    fail "dpkg installs other files"
  "${dpkg[@]}" -P velquon >"$package/dpkg.log" 2>&1 || fail "dpkg -P"
  left=$(find "$root" -path "$root/var" -prune -o ! -type d -print)
  same "files that stay behind" "" "$left"
}

check_package_control() {
  need_package
  local field value
  for field in Package=velquon Version="$version" Section=science Priority=optional; do
    same "${field%%=*}" "${field#*=}" "$(dpkg-deb -f "$(the_package)" "${field%%=*}")"
  done
  value=$(dpkg-deb -f "$(the_package)" Depends)
  for field in libqt6widgets6 libqt6printsupport6 libglut3.12 libglu1-mesa libc6; do
    [[ ", $value" == *", $field"* ]] || fail "$field is not among the dependencies: $value"
  done
}

check_package_runs() {
  need_package
  need file
  local page
  for page in "${pages[@]}"; do
    same "$page" "$page $version" "$("$unpacked/usr/bin/$page" --version)"
    file --brief "$unpacked/usr/bin/$page" | grep -q ', stripped$' || fail "$page is not stripped"
  done
  "$unpacked/usr/bin/velquon-events" --type pi- --seed 1 >"$package/packaged.csv"
  [ "$(wc -l <"$package/packaged.csv")" -gt 2 ] || fail "the packaged tool makes no event"
}

# What guards a program against errors in it, as Debian builds programs: the stack's protector, the
# checking functions of the C library, an address that differs from run to run, and tables of
# functions that are filled at the start and then only read.
check_package_hardening() {
  need_package
  need readelf
  local page program facts=$package/readelf.txt
  for page in "${pages[@]}"; do
    program=$unpacked/usr/bin/$page
    readelf --wide --file-header --segments --dynamic --dyn-syms "$program" >"$facts"
    grep -qE 'Type: +DYN ' "$facts" || fail "$page has a fixed address"
    grep -qE '^ +GNU_RELRO ' "$facts" || fail "$page has no RELRO"
    grep -qE '\(FLAGS\).* BIND_NOW' "$facts" || fail "$page binds late"
    grep -qE '^ +GNU_STACK .* RW ' "$facts" || fail "the stack of $page can be run"
    grep -qw __stack_chk_fail "$facts" || fail "$page has no stack protector"
    grep -qE ' __[a-z]+_chk@' "$facts" || fail "$page is not fortified"
  done
  need lintian
  local options=(--no-cfg --display-info
    --tags hardening-no-bindnow,hardening-no-relro,hardening-no-pie,hardening-no-fortify-functions
    --fail-on error,warning,info)
  [ "$(id -u)" -ne 0 ] || options+=(--allow-root)
  lintian "${options[@]}" "$(the_package)" || fail "lintian"
}

check_package_policy() {
  need_package
  need lintian
  local options=(--no-cfg --fail-on 'error,warning')
  [ "$(id -u)" -ne 0 ] || options+=(--allow-root)
  lintian "${options[@]}" "$(the_package)" || fail "lintian"
}

"check_$check"
[ "$failures" -eq 0 ]
