#!/usr/bin/env bash
# Shows a picture in a viewer of the system below Wine, over the whole screen, for some seconds: what ./bench compares
# the show's start with. Argument: the file.
exec timeout 4 feh --fullscreen --hide-pointer "$1"
