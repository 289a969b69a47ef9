#!/usr/bin/env bash
# settings_session.sh PROGRAM FOLDER: every setting goes from the store into the window of the built program and back,
# over a save, an exit and a restart, and the languages are switched. Keeps a picture in FOLDER.
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
# shellcheck source=tests/end_to_end/keyboard.sh
source "$here/keyboard.sh"
begin_session "$1" "$2" settings

# put_into_store: the lines of a store, without its head.
put_into_store() {
  mkdir -p "$(dirname "$(store)")"
  { echo "[General]" && cat; } > "$(store)"
}

# save: the entry of the menu Options.
save() {
  press alt+o
  until_true 20 is_menu_open || fail "Alt+O opened no menu" || return
  press v
}

# expect_store: its lines, in the order of the keys, are exactly these.
expect_store() {
  { echo "[General]" && LC_ALL=C sort; } > "$folder/expected"
  LC_ALL=C sort "$(store)" | grep -v '^\[General\]$' | { echo "[General]" && cat; } > "$folder/found"
  diff "$folder/expected" "$folder/found" >&2 || fail "the store is not as expected"
}

all_on() {
  printf '%s\n' Site=1 StayOnTop=1 Notepad=1 RegularType=0 RegularNumeric=25.00 RegularReserve=1
  printf '%s=1\n' RegularFeaturedCategory RegularFeatured RegularGallery RegularGalleryFeatured RegularHighlighted \
    RegularBold RegularGift RegularTwoCategories RegularTenDayAuction RegularMotors RegularVehicle RegularMotorcycle \
    RegularIsExtraPhotos RegularSupersize RegularSlideshow
  # eBay Motors has no real estate, and of two kinds of vehicle one is chosen.
  printf '%s\n' RegularRealEstate=0 RegularOtherVehicle=0 RegularNumExtraPhotos=5
  printf '%s\n' DutchMotors=1 DutchItemsOffered=10 DutchOpeningPrice=5.00 DutchNumExtraPhotos=3
  printf '%s=1\n' DutchFeaturedPlus DutchFeatured DutchGallery DutchGalleryFeatured DutchHighlighted DutchBold \
    DutchGift DutchTenDayAuction DutchIsExtraPhotos DutchSupersize DutchSlideshow
  printf '%s\n' PayPalCreditCard=1 PayPalNonCreditCard=0 PayPalUKRate=0.61 PayPalCanadaRate=1.25 PayPalGermanyRate=0.9
}

all_off() {
  printf '%s\n' Site=3 StayOnTop=0 Notepad=0 RegularType=1 RegularNumeric= RegularReserve=0
  printf '%s=0\n' RegularFeaturedCategory RegularFeatured RegularGallery RegularGalleryFeatured RegularHighlighted \
    RegularBold RegularGift RegularTwoCategories RegularTenDayAuction RegularMotors RegularVehicle RegularMotorcycle \
    RegularIsExtraPhotos RegularSupersize RegularSlideshow
  printf '%s\n' RegularRealEstate=1 RegularOtherVehicle=1 RegularNumExtraPhotos=0
  printf '%s\n' DutchMotors= DutchItemsOffered= DutchOpeningPrice= DutchNumExtraPhotos=0
  printf '%s=0\n' DutchFeaturedPlus DutchFeatured DutchGallery DutchGalleryFeatured DutchHighlighted DutchBold \
    DutchGift DutchTenDayAuction DutchIsExtraPhotos DutchSupersize DutchSlideshow
  printf '%s\n' PayPalCreditCard=0 PayPalNonCreditCard=1 PayPalUKRate=0.61 PayPalCanadaRate=1.25 PayPalGermanyRate=0.9
}

step "a store in which everything is set, saved by the program"
{ all_on && echo DutchVehicle=0; } | put_into_store
start_program "Tessaloom for eBay.com"
until_true 20 is_on_top || fail "the window was not kept on top"
save
until_true 20 is_stored DutchVehicle=1 || fail "nothing was saved"
{ all_on && echo DutchVehicle=1; } | expect_store
keep_picture

step "the same after an exit and a restart"
end_program
{ all_on && echo DutchVehicle=1; } | expect_store
start_program "Tessaloom for eBay.com"
sed -i '/^Regular/d' "$(store)" # what is saved now comes from the window
save
until_true 20 is_stored RegularBold=1 || fail "nothing was saved"
{ all_on && echo DutchVehicle=1; } | expect_store
end_program

step "a store in which nothing is set"
{ all_off && echo DutchVehicle=1; } | put_into_store
start_program "Tessaloom for eBay Canada (items listed in C\$)"
is_not_on_top || fail "the window was kept on top"
save
until_true 20 is_stored DutchVehicle=0 || fail "nothing was saved"
{ all_off && echo DutchVehicle=0; } | expect_store
end_program
{ all_off && echo DutchVehicle=0; } | expect_store

step "a first start in German opens the German site"
rm -f "$(store)"
LANG=de_DE.UTF-8 LANGUAGE=de_DE first_start "Nach Produkt-Updates suchen" "Tessaloom für eBay Deutschland"
until_true 20 is_stored Site=4 || fail "the first start stored no site"
is_stored PayPalGermanyRate=0.7854 || fail "the first start stored no rate"

step "English from the menu, while the program runs"
choose_language Down
expect_title "Tessaloom for eBay Germany"
until_true 20 is_stored Language=English || fail "the choice was not stored"
end_program

step "the choice holds at the next start, and the third entry brings German back"
LANG=de_DE.UTF-8 LANGUAGE=de_DE start_program "Tessaloom for eBay Germany"
choose_language Down Down
expect_title "Tessaloom für eBay Deutschland"
until_true 20 is_stored Language=German || fail "the choice was not stored"
end_program

step "French at the next start, by the store"
sed -i 's/^Language=German$/Language=French/' "$(store)"
start_program "Tessaloom pour eBay Allemagne"
end_program

step "done"
