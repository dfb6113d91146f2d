#!/bin/sh
# usage: tools/setup.sh [LIST...]
# Installs what cmake/packages.debian and the further package lists name and this system lacks. Quick and silent when
# nothing is missing; asks for root only when something is. On a system without Debian's package manager it lists what
# is needed and fails.
set -u
set -- "$(cd "$(dirname "$0")/.." && pwd)/cmake/packages.debian" "$@"
needed=$(sed -e 's/#.*//' "$@")

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This system has no apt-get: please install what these Debian packages hold, by its own means:" >&2
    sed -n 's/^\([a-z0-9][^ ]*\) *# */  \1 - /p' "$@" >&2
    exit 1
fi

missing=
# shellcheck disable=SC2086  # the list is meant to be split
present=$(dpkg-query -W -f '${Package} ${db:Status-Status}\n' $needed 2>/dev/null)
for package in $needed; do
    case "
$present
" in
    *"
$package installed
"*) ;;
    *) missing="$missing $package" ;;
    esac
done
[ -z "$missing" ] && exit 0

echo "Installing:$missing"
if [ "$(id -u)" -eq 0 ]; then
    as_root=
elif command -v sudo >/dev/null; then
    as_root=sudo
else
    echo "Neither root nor sudo at hand. As root, run: apt-get install$missing" >&2
    exit 1
fi
# Debian's kamailio would start a server for the whole machine, now and at each boot. Nothing here wants it: exchanges are started as
# programs. Where the machine has a policy of its own about services, that one holds.
policy=${DPKG_ROOT:-}/usr/sbin/policy-rc.d
ours=
end_policy() {
    [ -z "$ours" ] || $as_root rm -f "$policy"
    ours=
}
kamailio=
case "$missing " in
*" kamailio "*)
    kamailio=1
    if [ ! -e "$policy" ]; then
        trap end_policy EXIT
        trap 'exit 130' INT TERM
        ours=1
        $as_root tee "$policy" >/dev/null <<'TEXT' && $as_root chmod 755 "$policy" || exit 1
#!/bin/sh
case " $* " in
*" kamailio "* | *" kamailio.service "*) exit 101 ;;
esac
TEXT
    fi
    ;;
esac
$as_root apt-get update -q || exit 1
# shellcheck disable=SC2086
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -qy --no-install-recommends $missing
status=$?
if [ -n "$kamailio" ] && [ "$status" -eq 0 ] && command -v systemctl >/dev/null; then
    $as_root systemctl disable --quiet kamailio.service || status=1
fi
exit "$status"
