#!/usr/bin/env bash
# A project's life in Code::Blocks, with real keys and clicks; started by tools/play-codeblocks:  tour.sh ROOT BIN FOLDER
# Clicks are at the places that the IDE's main window has on a screen of 1280 by 1024 pixels.  Every step waits until what
# it needs is there; the limit only ends a tour that hangs.
set -euo pipefail  # grep -q behind a pipe would end the program before it, and so fail
root=$1 bin=$2 folder=$3
limit=${TOUR_LIMIT:-120}
ide=
trap '[ -z "$ide" ] || kill "$ide" 2>/dev/null || true' EXIT
sample=$folder/sample
url=file://$sample/repository/trunk
export CORVANE_REGISTRY_DIR=$sample/registry
export XDG_CONFIG_HOME=$folder/config SUBVERSION_SCC_CONFIG_DIR=$folder/config/subversion

# ------------------------------------------------------------------------------------------------------ windows
step() { echo "== $*"; }
picture() { import -window root "$folder/$1.png"; }
fail() {
  echo "tour: $*" >&2
  picture failed
  exit 1
}
until_true() {  # WHAT COMMAND...
  local what=$1 end=$((SECONDS + limit))
  shift
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $end ] || fail "waited in vain for: $what"
    sleep 0.2
  done
}
find_window() { xdotool search --onlyvisible --name "^$(sed 's/[()]/\\&/g' <<<"$1")\$" 2>/dev/null; }
no_window() { ! find_window "$1"; }
has_focus() { xdotool getactivewindow getwindowname | grep -xF -- "$1" >/dev/null; }
expect() {  # TITLE: waits for the window and activates it
  until_true "the window $1" find_window "$1"
  xdotool windowactivate "$(find_window "$1" | tail -n 1)"
  until_true "the focus of $1" has_focus "$1"
}
gone() { until_true "the end of $1" no_window "$1"; }
click_in() { xdotool mousemove --window "$(find_window "$1" | tail -n 1)" "$2" "$3" click 1; }  # TITLE X Y
click() { xdotool mousemove "$1" "$2" click "${3:-1}"; }
keys() { xdotool key --clearmodifiers --delay 40 "$@"; }
enter() { xdotool type --clearmodifiers --delay 25 "$1"; }

# The IDE's menus are windows without a title.
menus() { xdotool search --onlyvisible --name "^codeblocks\$" 2>/dev/null | wc -l; }
menu_is_open() { [ "$(menus)" -gt 0 ]; }
no_menu() { [ "$(menus)" -eq 0 ]; }
choose() {  # X Y ROW TITLE: opens the menu at X Y and clicks its row at the height ROW until the window TITLE is there
  until_true "an idle IDE" no_menu
  click "$1" "$2"
  local end=$((SECONDS + limit))
  until find_window "$4" >/dev/null; do
    [ $SECONDS -lt $end ] || fail "the menu does not open $4"
    # The row may be disabled still, and the menu closes for a moment if the add-in shows a window while it opens.
    ! menu_is_open || click $(($1 + 30)) "$3"
    sleep 0.5
  done
  expect "$4"
}
team_x=455
declare -A team=([check-out]=57 [check-in]=82 [add]=107 [remove]=132 [undo]=157 [commit]=183 [place]=208 [pull]=233)
team() { choose $team_x 32 "${team[$1]}" "$2"; }  # COMMAND TITLE

# ---------------------------------------------------------------------------------------------------------- IDE
start() {  # FILE: starts the IDE on it
  "$root/tools/start-codeblocks" "$bin" "$folder/profile" "$1" >>"$folder/codeblocks.log" 2>&1 &
  ide=$!
  until_true "the IDE" main_window
  front
}
main_window() { xdotool search --onlyvisible --name ' - Code::Blocks svn build$'; }
front() {
  xdotool windowactivate "$(main_window)"
  until_true "the focus of the IDE" eval '[ "$(xdotool getactivewindow)" = "$(main_window)" ]'
}
quit() {
  front
  keys ctrl+q
  local code=0
  wait "$ide" || code=$?
  [ $code -eq 0 ] || fail "the IDE ended with $code"
}
open_file() {  # NAME: opens a file of the project with the IDE's own dialog
  front
  keys ctrl+o
  expect "Open file"
  enter "$1"
  keys Return
  gone "Open file"
  until_true "the editor of $1" editor_of "$1"
}
editor_of() { xdotool getwindowname "$(main_window)" | grep "^\*\?$(basename "$1") \[" >/dev/null; }
repository() { svn cat "$url/$1"; }

# ---------------------------------------------------------------------------------------------------------- story
# ann has a project that is under nobody's control, and an empty repository.
"$bin/make-sample" "$sample" "$root/samples/Flight" "$bin/SubversionScc.so" ann >/dev/null
repository=file://$sample/repository
printf '[Software\\SubversionScc\\RecentRepositories]\n1=%s\n' "$repository" >>"$CORVANE_REGISTRY_DIR/current-user.ini"
ann="$folder/ann's gliders"
cp -r "$root/samples/Glider" "$ann"
chmod -R u+w "$ann"

step "1. Place a project that is under nobody's control"
start "$ann/Glider.workspace"
team place "Place project Wizard: Step 1 of 3"
keys alt+n
expect "Choose a Subversion Project"
new_folder() {  # as soon as the tree shows the repository
  find_window "New Folder" || { click 75 224 && click 70 409; find_window "New Folder"; }
}
until_true "the new folder" new_folder
expect "New Folder"
keys ctrl+a
enter Glider
keys Return
gone "New Folder"
expect "Choose a Subversion Project"
keys Return
expect "Place project Wizard: Step 2 of 3"
keys alt+n
expect "Place project Wizard: Step 3 of 3"
picture 1-place-files
keys alt+n
expect "Place project Wizard: Status page"
until_true "the project in the repository" eval "svn ls '$url/Glider' | grep -x main.cpp"
until_true "the mapping file" grep -q '^UserName=' "$ann/Glider.cdp"
picture 2-placed
keys alt+c
gone "Place project Wizard: Status page"
[ "$(svn ls "$url/Glider" | tr '\n' ' ')" = "Glider.cbp Glider.cpp Glider.h Polar.cpp Polar.h main.cpp " ] ||
  fail "other files were added than those of the project: $(svn ls "$url/Glider")"

confirm() {  # closes the box with the result
  expect "Source Code Control"
  keys Return
  gone "Source Code Control"
}
accept() {  # COMMAND TITLE COMMENT PICTURE: a command for the file in front, which is ticked, its comment and the last box
  team "$1" "$2"
  picture "$4"
  keys alt+o
  expect "Comments"
  enter "$3"
  keys alt+o
  gone "Comments"
  confirm
  front
}
type_on_top() {  # TEXT: inserts a line into the file in front
  front
  click 700 600
  keys ctrl+Home
  enter "$1"
  keys Return
  until_true "unsaved text" eval 'xdotool getwindowname "$(main_window)" | grep "^[*]"'
}
saved() { until_true "a saved editor" eval 'xdotool getwindowname "$(main_window)" | grep -v "^[*]"'; }
file_menu() {  # UP: chooses from the Team menu of the file in front, counted from its end
  until_true "an idle IDE" no_menu
  click 700 600 3
  until_true "a menu" menu_is_open
  keys Up Right
  until_true "a submenu" eval '[ "$(menus)" -gt 1 ]'
  for ((i = 0; i < $1; i++)); do keys Up; done
  keys Return
  until_true "a closed menu" no_menu
}
no_questions() { no_window "Reload file?.*" || fail "the IDE asks about a file that a command changed"; }

step "2. Check out the file in front"
open_file "$ann/Glider.cpp"
accept check-out "Check Out File(s)" "Wings" 3-check-out
svn info "$url/Glider/Glider.cpp" | grep "^Lock Token" >/dev/null || fail "Glider.cpp is not locked"

step "3. Check in text that was not saved"
type_on_top "// longer wings"
accept check-in "Check In File(s)" "Longer wings" 4-check-in
[ "$(svn cat "$url/Glider/Glider.cpp" | head -n 1)" = "// longer wings" ] || fail "the text was not checked in"
svn log -r HEAD "$url/Glider" | grep "Longer wings" >/dev/null || fail "the comment is missing"
saved
no_questions

step "4. Differences and history, from the editor's context menu"
type_on_top "// not yet checked in"
file_menu 4
expect "Differences: Glider.cpp"
picture 5-differences
keys Escape
gone "Differences: Glider.cpp"
confirm
front
file_menu 2
expect "History: Glider.cpp"
picture 6-history
keys Escape
gone "History: Glider.cpp"

step "5. The commit browser commits what is left"
front
team commit "Commit Browser"
picture 7-commit-browser
keys alt+c
confirm
until_true "the commit" eval "svn cat '$url/Glider/Glider.cpp' | sed -n 1p | grep -x '// not yet checked in'"
saved

step "6. Bob changes a file that ann has open; she gets it"
svn checkout -q "$url/Glider" "$folder/bob"
open_file "$ann/main.cpp"
svn lock -q "$folder/bob/main.cpp"
sed -i '1i // by bob' "$folder/bob/main.cpp"
svn commit -q -m "Bob was here" "$folder/bob"
file_menu 3
expect "Get Latest Version"
keys alt+o
confirm
grep -qx "// by bob" "$ann/main.cpp" || fail "ann has not got the change"
no_questions
# What the editor saves now shows that it has reloaded the file.
type_on_top "// by ann"
keys ctrl+s
saved
[ "$(head -n 2 "$ann/main.cpp")" = $'// by ann\n// by bob' ] || fail "the editor has lost the change"

echo "== The tour passed. Its screenshots are in $folder."
