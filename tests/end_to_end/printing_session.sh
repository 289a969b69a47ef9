#!/usr/bin/env bash
# printing_session.sh PROGRAM FOLDER: the built program prints its notepad on the default printer of a print server of
# its own, also when that printer is paused, refuses or is gone. Keeps a picture of a printed page in FOLDER.
set -euo pipefail
here=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
# shellcheck source=tests/end_to_end/keyboard.sh
source "$here/keyboard.sh"
PATH=$PATH:/usr/sbin # where an ordinary user would not look for cupsd and lpadmin

TITLE="Tessaloom Notes"
QUEUE=notes
PDF_PRINTER=/usr/lib/cups/backend/cups-pdf

server_pid=
job=0 # the last one; the server counts from 1

for tool in cupsd lpadmin lpstat pdfinfo pdftotext pdftoppm; do
  command -v "$tool" > /dev/null || fail "the test needs $tool" || exit
done
begin_session "$1" "$2" printing
trap finish EXIT

finish() {
  local status=$?
  set +e
  stop_server
  ((status == 0)) || tail -n 40 "$server/log/error" >&2
  (exit "$status")
  clean_up
}

# The folders and settings of a print server that touches nothing outside them.
make_server() {
  local kind
  mkdir -p "$server"/{etc,run,cache,spool,temp,log,documents,programs/backend,paper} "$folder/home"
  chmod a+x "$folder" # root's server has the filters run as another user
  chmod 1777 "$server"/{temp,paper}
  for kind in filter daemon driver monitor notifier; do ln -s "/usr/lib/cups/$kind" "$server/programs/$kind"; done
  cat > "$server/etc/cups-files.conf" << END
ServerRoot $server/etc
ServerBin $server/programs
RequestRoot $server/spool
CacheDir $server/cache
StateDir $server/run
TempDir $server/temp
DocumentRoot $server/documents
AccessLog $server/log/access
ErrorLog $server/log/error
PageLog $server/log/page
Sandboxing relaxed
SystemGroup $(id -gn)
END
  cat > "$server/etc/cupsd.conf" << END
Listen $CUPS_SERVER
Browsing No
WebInterface No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
END
}

# make_printer: its paper is a PDF, and beside it the title under which the server gave it the job. CUPS-PDF, where it
# may be run, is what many desktops have; it takes PostScript. It runs for root alone; any other user gets a printer
# that takes PDF.
make_printer() {
  local backend=$server/programs/backend/paper put_on_paper
  if ((EUID == 0)) && [[ -x $PDF_PRINTER ]]; then
    echo "- the printer is CUPS-PDF"
    relocated_cups_pdf > "$server/printer.ppd"
    put_on_paper="exec env DEVICE_URI=cups-pdf:/ $PDF_PRINTER \"\$@\""
  else
    echo "- the printer is a PDF printer whose paper is a file, as CUPS-PDF cannot be run here"
    cp /usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd "$server/printer.ppd"
    # shellcheck disable=SC2016 # for the printer's shell
    put_on_paper='cat ${6:+"$6"} > "job_$1.pdf"'
  fi
  cat > "$backend" << END
#!/bin/sh
# Called with: job user title copies options [file]
cd "$server/paper" || exit
printf '%s\n' "\$3" > "job_\$1.title"
$put_on_paper
END
  chmod 700 "$backend" # the server runs as root what nobody else may run
}

# relocated_cups_pdf: its description of itself, with its folders as options: they take precedence over its settings,
# which it reads in /etc. No option may contain an absolute path, but the printer is started in the right folder.
relocated_cups_pdf() {
  local original=/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd option
  sed '/^\*OpenUI \*PDFVer/,$d' "$original"
  for option in Out Log Spool; do
    printf '*OpenUI *%s/%s: PickOne\n*Default%s: .\n' "$option" "$option" "$option"
    printf '*%s ./here: ""\n*CloseUI: *%s\n\n' "$option" "$option"
  done
  sed -n '/^\*OpenUI \*PDFVer/,$p' "$original"
}

start_server() {
  cupsd -f -c "$server/etc/cupsd.conf" -s "$server/etc/cups-files.conf" >> "$server/log/output" 2>&1 &
  server_pid=$!
  until_true 30 is_serving || fail "the print server did not start: $(< "$server/log/output")"
}

is_serving() { [[ $(lpstat -r 2> /dev/null) == "scheduler is running" ]]; }

stop_server() {
  [[ -n $server_pid ]] || return 0
  kill "$server_pid" 2> /dev/null || true
  until_true 10 has_server_ended || kill -KILL "$server_pid"
  wait "$server_pid" 2> /dev/null || true
  server_pid=
}

has_server_ended() { ! kill -0 "$server_pid" 2> /dev/null; }

# install_printer: as the default one. Rendered by cairo, text is still text after its way through PostScript.
install_printer() {
  lpadmin -p "$QUEUE" -E -v paper:/ -P "$server/printer.ppd" -o PageSize=A4 -o pdftops-renderer-default=pdftocairo \
    2> "$folder/lpadmin.log" || fail "no printer could be installed: $(< "$folder/lpadmin.log")" || return
  lpadmin -d "$QUEUE"
}

jobs_in_state() { lpstat -W "$1" -o "$QUEUE" 2> /dev/null | sed 's/ .*//'; }
is_job_waiting() { jobs_in_state not-completed | grep -qx "$QUEUE-$job"; }
is_job_completed() { jobs_in_state completed | grep -qx "$QUEUE-$job"; }

# print: Ctrl+P, which the whole window knows.
print() { press ctrl+p; }

# take_paper: what the last job has put out, into $paper.
take_paper() {
  local found
  until_true 60 is_job_completed || fail "job $job was not printed" || return
  found=("$server"/paper/*job_"$job".pdf) # CUPS-PDF puts a title in front
  paper=${found[0]}
  [[ -s $paper ]] || fail "job $job came out as nothing" || return
  [[ $(< "$server/paper/job_$job.title") == "$TITLE" ]] ||
    fail "job $job is called \"$(< "$server/paper/job_$job.title")\""
}

# expect_paper FORMAT PAGES TEXT: every page of $paper has its header and its footer, and between them stands the text.
expect_paper() {
  local page body="" lines footer
  pdfinfo "$paper" > "$folder/info"
  grep -q "^Page size: .*($1)\$" "$folder/info" || fail "the paper is not $1: $(grep '^Page size' "$folder/info")" ||
    return
  grep -qx "Pages: *$2" "$folder/info" || fail "$(grep '^Pages' "$folder/info"), but there should be $2" || return
  for ((page = 1; page <= $2; page++)); do
    lines=$(pdftotext -layout -f "$page" -l "$page" "$paper" - | plain)
    [[ ${lines%%$'\n'*} == "$TITLE" ]] || fail "page $page is headed \"${lines%%$'\n'*}\"" || return
    footer=${lines##*$'\n'}
    [[ $footer == "$today Page $page" || $footer == "$(day) Page $page" ]] || # the day may end meanwhile
      fail "at the foot of page $page stands \"$footer\"" || return
    body+=$(sed '1d;$d' <<< "$lines")$'\n'
  done
  diff <(plain <<< "$3") <(plain <<< "$body") >&2 || fail "other lines are printed than stand in the notepad"
}

# plain: without empty lines, and with one blank for many.
plain() { tr -d '\f\r' | sed -E 's/ +/ /g; s/^ //; s/ $//; /^$/d'; }

day() { date '+%-d %b %Y'; }

# expect_ink: at a pixel to the point, page 1 of $paper shows something in the middle of its top, at both ends of its
# bottom and where the text begins, and nothing on its left margin.
expect_ink() {
  pdftoppm -r 72 -f 1 -l 1 -singlefile -png "$paper" "$folder/page"
  has_ink 100x40+248+15 || fail "the header is not in the middle" || return
  has_ink 60x22+36+802 || fail "the date is not at the lower left" || return
  has_ink 60x22+499+802 || fail "the page number is not at the lower right" || return
  has_ink 200x30+36+72 || fail "the text does not begin an inch below the edge" || return
  ! has_ink 34x842+0+0 || fail "something is printed on the margin"
}

has_ink() { (($(convert "$folder/page.png" -crop "$1" +repage -format '%k' info:) > 1)); }

# copy_notes: what stands in the notepad, into $notes.
copy_notes() {
  go_to txtNotes
  forget_clipboard
  press ctrl+a ctrl+c
  until_true 20 is_copied || fail "nothing could be copied from the notepad" || return
  notes=$(clipboard)
}

# append_to_notes TEXT: pasted, which is faster than typing.
append_to_notes() {
  go_to txtNotes
  printf '%s' "$1" | xclip -selection clipboard -in > /dev/null
  press ctrl+End ctrl+v
  all_keys_handled
}

# A second window is open: a message or the dialog that saves a PDF.
is_second_open() {
  local active
  active=$(xdotool getactivewindow 2> /dev/null) && [[ -n $active && $active != "$window" ]] && is_menu_open
}
is_saving_open() { is_second_open && [[ $(xdotool getactivewindow getwindowname 2> /dev/null) == "$TITLE" ]]; }
is_window_alone() { is_menu_closed && is_active; }

# still_usable: nothing but the window is open, its menus do, and it knows what was entered.
still_usable() {
  until_true 20 is_window_alone || fail "the window did not become active again" || return
  all_keys_handled
  expect txtStartingPrice 9.99
}

server=$folder/server
today=$(day)
# Nothing of the user's or the system's choice of a printer is to count.
export HOME=$folder/home CUPS_SERVER=$server/socket CUPS_SERVERROOT=$server/etc
unset PRINTER LPDEST CUPS_USER CUPS_ENCRYPTION
make_server
make_printer
start_server
install_printer

# The notepad is open: its box can be reached, and so can its buttons.
mkdir -p "$(dirname "$(store)")"
printf '%s\n' '[General]' Site=1 Notepad=1 > "$(store)"
reachable cmdPrintNotepad cmdCopyNotepad cmdClearNotepad txtNotes

step "an entry on A4"
start_program "Tessaloom for eBay.com"
fill_in txtStartingPrice 9.99
fill_in txtPrice 25.00
push cmdCalculate
push cmdAddRegularToNotes
copy_notes
[[ $notes == *"REGULAR AUCTION"*'9.99'*'25.00'*"TOTAL FEES"* ]] || fail "the entry is \"$notes\""
print
job=1
take_paper
expect_paper A4 1 "$notes"
expect_ink
pdftoppm -r 100 -f 1 -l 1 -singlefile -png "$paper" "$pictures/$picture"

step "two entries and many lines on three pages"
push cmdAddRegularToNotes
append_to_notes "$(printf 'Line %d of many\n' {1..138})"
copy_notes
(($(grep -c "REGULAR AUCTION" <<< "$notes") == 2)) || fail "there are not two entries in \"$notes\""
[[ $notes == *"Line 138 of many" ]] || fail "not all lines were pasted"
print
job=2
take_paper
expect_paper A4 3 "$notes"
still_usable

step "a printer that is paused takes the notepad and prints it later"
cupsdisable "$QUEUE"
print
job=3
until_true 20 is_job_waiting || fail "the notepad does not wait for the printer"
still_usable
cupsenable "$QUEUE"
take_paper
expect_paper A4 3 "$notes"

step "without a print server, a PDF is offered and declined"
stop_server
print
until_true 30 is_saving_open || fail "nothing tells that there is no printer"
press Escape
still_usable

step "without a printer, a PDF is saved"
start_server
lpadmin -x "$QUEUE"
print
until_true 30 is_saving_open || fail "no PDF was offered"
paper=$folder/home/saved.pdf
enter "$paper"
press Return
until_true 30 test -s "$paper" || fail "no PDF was saved"
still_usable
expect_paper A4 3 "$notes"
grep -qx "Title: *$TITLE" "$folder/info" || fail "the PDF has another title"

step "a printer with another paper"
install_printer
lpadmin -p "$QUEUE" -o PageSize=Letter 2> /dev/null
print
job=4
take_paper
expect_paper letter 3 "$notes"

step "a printer that takes no job is told of"
cupsreject "$QUEUE"
print
until_true 20 is_second_open || fail "nothing tells that the notepad was not taken"
press Return
still_usable

step "once it takes jobs again, it prints"
cupsaccept "$QUEUE"
print
job=5
take_paper
end_program

step "done"
