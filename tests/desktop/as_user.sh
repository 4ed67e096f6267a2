#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs ZSM_TEST_PROGRAM as the user ZSM_TEST_USER, who is given the home directory and what is beside it.
preloaded=$LD_PRELOAD
unset LD_PRELOAD
chown -R "$ZSM_TEST_USER" "$HOME/.." || exit
# The user may look into any folder, as the build's may be closed to others, and has no other right.
# The kernel forgets at a change of user that a program is to end with the one that started it.
exec setpriv --reuid "$ZSM_TEST_USER" --regid "$ZSM_TEST_USER" --clear-groups --pdeathsig KILL \
  --inh-caps -all,+dac_read_search --ambient-caps -all,+dac_read_search \
  env LD_PRELOAD="$preloaded" "$ZSM_TEST_PROGRAM" "$@"
