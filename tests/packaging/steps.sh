# For the tests of what leaves the built tree; to be sourced with the source folder and the build folder as arguments.
# Afterwards the working directory is a folder like the project's, with its build folder in it.
set -eu
source=$1
build=$(readlink -f "$2")

# shellcheck source=tools/display.sh
. "$source/tools/display.sh"

# Ends what this test's programs left behind: the call process is detached, and is known by its place.
end_programs() {
    local exe
    for exe in /proc/[0-9]*/exe; do
        case $(readlink "$exe" 2>/dev/null) in
        "$HOME"/*)
            exe=${exe#/proc/}
            kill -9 "${exe%/exe}" 2>/dev/null || true
            ;;
        esac
    done
}

finish() {
    end_programs
    stop_all
    # What was made read-only could not be removed.
    chmod -R u+w "$HOME"
}
trap finish EXIT
trap 'exit 130' INT TERM

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

# block DOCUMENT LANGUAGE NUMBER: the text of the document's NUMBERth block of that language.
block() {
    awk -v start="\`\`\`$2" -v wanted="$3" '
        $0 == "```" { inside = 0 }
        inside && count == wanted { print; found = 1 }
        $0 == start { inside = 1; count++ }
        END { exit !found }' "$source/docs/$1"
}

# run_block DOCUMENT NUMBER: runs that block of commands, each line as it stands, until one fails.
run_block() {
    block "$1" sh "$2" >"$HOME/commands"
    sh -ex "$HOME/commands"
}

mkdir "$HOME/project"
ln -s "$build" "$HOME/project/build"
cd "$HOME/project"
# A tour counts Qt's warnings, and a missing runtime folder would be one more.
mkdir -m 700 "$HOME/run"
export XDG_RUNTIME_DIR=$HOME/run QT_QPA_PLATFORM=xcb
start_sound
