#!/bin/sh
# Runs a test as the child of the first process of PID, mount and network
# namespaces of its own, with a /tmp of its own: no pid it reads can name a
# process outside, an X server it starts cannot take another's display for
# stale, and whatever it starts ends with it. The first process reaps the
# clients the launcher leaves behind, as init does. Only root may make the
# namespaces; elsewhere the test runs as it is and its sandboxed cases skip.
#   in-own-namespace.sh <test> [arguments...]
if [ "${DROVIA_OWN_NAMESPACE:-}" = 1 ]; then
    . "$(dirname "$0")/private-tmp.sh"
    private_tmp "$0" "$1" || exit 1
    "$@" &
    wait $!
    exit $?
fi
if unshare --pid --fork --mount-proc --net true 2> /dev/null; then
    DROVIA_OWN_NAMESPACE=1 exec unshare --pid --fork --kill-child --mount-proc --net "$0" "$@"
fi
exec "$@"
