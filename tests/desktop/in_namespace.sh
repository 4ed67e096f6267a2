#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs ZSM_TEST_PROGRAM in a mount namespace of its own, after the command ZSM_TEST_MOUNT in it and with the redirections
# ZSM_TEST_REDIRECTIONS. The exit status is 125 if the system does not allow that.
preloaded=$LD_PRELOAD
unset LD_PRELOAD
exec unshare --mount sh -c "($ZSM_TEST_MOUNT) || exit 125
exec env LD_PRELOAD='$preloaded' '$ZSM_TEST_PROGRAM' \"\$@\" $ZSM_TEST_REDIRECTIONS" sh "$@"
