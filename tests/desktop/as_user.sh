#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs ZSM_TEST_PROGRAM as the user ZSM_TEST_USER, who becomes the owner of the home's parent directory.
preloaded=$LD_PRELOAD
unset LD_PRELOAD
chown -R "$ZSM_TEST_USER" "$HOME/.." || exit
# The user may read any directory, as that of the build may be private, but has no other privilege.
# A change of user clears the parent-death signal, so set it again.
exec setpriv --reuid "$ZSM_TEST_USER" --regid "$ZSM_TEST_USER" --clear-groups --pdeathsig KILL \
  --inh-caps -all,+dac_read_search --ambient-caps -all,+dac_read_search \
  env LD_PRELOAD="$preloaded" "$ZSM_TEST_PROGRAM" "$@"
