#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs ZSM_TEST_PROGRAM as the user ZSM_TEST_USER, who becomes the owner of the home directory and its siblings.
preloaded=$LD_PRELOAD
unset LD_PRELOAD
chown -R "$ZSM_TEST_USER" "$HOME/.." || exit
# The user may search any folder, since the build's may be closed to others, and has no other capability.
# The parent-death signal is set again, since the kernel clears it on a change of user.
exec setpriv --reuid "$ZSM_TEST_USER" --regid "$ZSM_TEST_USER" --clear-groups --pdeathsig KILL \
  --inh-caps -all,+dac_read_search --ambient-caps -all,+dac_read_search \
  env LD_PRELOAD="$preloaded" "$ZSM_TEST_PROGRAM" "$@"
