#!/usr/bin/env bash
# keyboard_session.sh PROGRAM FOLDER: a seller's session with the built program, by keyboard alone, on a display
# and with settings of its own. Keeps pictures in FOLDER. Figures are worked out from the schedule of eBay.com.
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
# shellcheck source=tests/end_to_end/keyboard.sh
source "$here/keyboard.sh"
begin_session "$1" "$2" session

step "start on a machine that has no settings yet"
first_start "Check for product updates" "Tessaloom for eBay.com"
is_stored UpdateCheck=0 || fail "the answer was not stored"
until_true 20 is_stored Site=1 || fail "the first start stored no site"

step "an auction from 9.99 that closes at 25.00"
fill_in txtStartingPrice 9.99
fill_in txtPrice 25.00
# 0.35 up to an opening bid of 9.99; 5.25 % of 25.00 is 1.3125
expect_figures 0.35 0.00 1.31 1.66

step "Gallery"
switch chkGallery
reachable chkGalleryFeatured
expect_figures 0.35 0.25 1.31 1.91
keep_picture

step "Bold in two categories"
switch chkBold
switch chkTwoCategories
# listing fee and features twice: 2 x 0.35, 2 x (0.25 + 1.00)
expect_figures 0.70 2.50 1.31 4.51
switch chkTwoCategories

step "Gallery Featured takes the place of Gallery"
switch chkGalleryFeatured
expect_figures 0.35 20.95 1.31 22.61
switch chkGallery # takes Gallery Featured with it
unreachable chkGalleryFeatured
expect_figures 0.35 1.00 1.31 2.66

step "three extra pictures at 0.15"
switch chkExtraPhotos
reachable cboExtraPhotos
go_to cboExtraPhotos
press Down Down
expect_figures 0.35 1.45 1.31 3.11

step "a vehicle, and its kind"
switch chkMotors
reachable chkVehicle
unreachable chkRealEstate
switch chkVehicle
reachable optMotorcycle # the two kinds are one stop
# listing and selling a car cost 40.00 each, bold 4.00 on it
expect_figures 40.00 4.45 40.00 84.45
go_to optMotorcycle
press Up # from the other kind, which is chosen
# a motorcycle: 30.00 and 25.00
expect_figures 30.00 4.45 25.00 59.45

step "Clear All"
push cmdClearAll
unreachable chkVehicle
unreachable optMotorcycle # the two kinds are one stop
unreachable cboExtraPhotos
reachable chkRealEstate
# Onwards from the button: an amount box that is left on the way would recalculate.
press Tab
for box in txtInsertionFee txtExtras txtFVF txtFees; do
  press Tab
  nothing_in "$box"
done
expect_empty txtStartingPrice

step "a reserve of 150.00 that a closing bid of 50.00 does not meet"
go_to cboIsReserve
press Down
fill_in txtPrice 50.00
fill_in txtStartingPrice 150.00
# 2.40 up to 199.99, and 2.00 for a reserve of 50.00 or more; not sold, so no final value fee
expect_figures 4.40 0.00 "" 4.40

step "a closing bid that is left below the reserve is raised to it"
expect txtPrice 50.00
# 25.00 x 5.25 % + 125.00 x 2.75 % = 4.75, and a reserve that is met costs nothing
expect_figures 2.40 0.00 4.75 7.15
expect txtPrice 150.00

step "a closing bid above the reserve"
fill_in txtPrice 185.00
# 25.00 x 5.25 % + 160.00 x 2.75 % = 5.7125
expect_figures 2.40 0.00 5.71 8.11

step "Item Did Not Sell"
switch chkDidNotSell
unreachable txtPrice
expect_figures 4.40 0.00 "" 4.40
switch chkDidNotSell
reachable txtPrice
expect txtPrice 0.00

step "no reserve, and a closing bid below the opening bid"
go_to cboIsReserve
press Up
fill_in txtStartingPrice 10.00
fill_in txtPrice 5.00
# without a reserve nothing sells below its opening bid; 5.25 % of 10.00 is 0.525
expect_figures 0.60 0.00 0.53 1.13
expect txtPrice 10.00

step "the Calculate button, and letters in a box for amounts"
fill_in txtPrice 2x5
push cmdCalculate
expect txtPrice 25.00
expect txtFVF 1.31

step "show the notepad and write into it"
height=$(window_height)
push cmdNotepad
until_true 20 is_higher_than "$height" || fail "the window did not grow"
reachable cmdPrintNotepad cmdCopyNotepad cmdClearNotepad txtNotes
go_to txtNotes
enter "Sold to Ann"
expect txtNotes "Sold to Ann"

step "hide the notepad"
push cmdNotepad
unreachable cmdPrintNotepad cmdCopyNotepad cmdClearNotepad txtNotes
until_true 20 is_as_high_as "$height" || fail "the window did not shrink back"

step "Options > Keep on Top, on and off"
is_not_on_top || fail "the window was on top before"
press alt+o
until_true 20 is_menu_open || fail "Alt+O opened no menu"
press k
until_true 20 is_on_top || fail "the window manager was not asked to keep the window on top"
until_true 20 is_active || fail "the window is no longer active"
press alt+o
until_true 20 is_menu_open || fail "Alt+O opened no menu"
press k
until_true 20 is_not_on_top || fail "the window is still on top"
expect txtFees 1.91

step "File > Exit stores the site"
sed -i 's/^Site=1$/Site=3/' "$(store)" # as another window might have done
is_stored Site=3 || fail "the settings store could not be prepared"
end_program
is_stored Site=1 || fail "Site=1 does not stand in the settings store"

step "done"
