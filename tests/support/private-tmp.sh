# Sourced by the scripts that run tests in namespaces of their own.
#   private_tmp <path>...
# Mounts a /tmp of its own over the shared one, in the caller's mount
# namespace, which must be its own. A given path that lies below the shared
# /tmp (a checkout or build folder there) stays where it was: the shared /tmp
# is kept reachable at /mnt, in this namespace only, and the path's top folder
# bound back into the new /tmp.
private_tmp() {
    tops=""
    for path in "$@"; do
        real="$(realpath "$path")" || return 1
        case "$real" in
        /tmp/?*)
            below="${real#/tmp/}"
            tops="$tops${below%%/*}
"
            ;;
        esac
    done
    mount --bind /tmp /mnt && mount -t tmpfs -o mode=1777 drovia-tmp /tmp || return 1
    printf '%s' "$tops" | while IFS= read -r top; do
        mountpoint -q "/tmp/$top" || { mkdir -p "/tmp/$top" && mount --bind "/mnt/$top" "/tmp/$top"; } || exit 1
    done
}
