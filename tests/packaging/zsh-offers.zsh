# zsh -f zsh-offers.zsh FOLDER ANSWERS LINE...: what an interactive zsh with the completion functions of
# FOLDER offers at the end of each LINE, into the files 1, 2, 3 and so on of the folder ANSWERS. The shell
# runs in a terminal of its own and writes down itself what is to be added to its list.

zmodload zsh/zpty zsh/zselect
export OFFERS_FOLDER=$1 OFFERS_ANSWERS=$2 TERM=dumb
shift 2

# wait_for FILE: fails when it is not there within ten seconds. Reads what the terminal shows, for a shell
# stops when nobody does.
wait_for() {
  local -i attempt
  local shown
  for attempt in {1..1000}; do
    while zpty -r -t terminal shown; do :; done
    [[ -e $1 ]] && return
    zselect -t 1
  done
  print -u2 "zsh-offers: no $1"
  return 1
}

zpty terminal zsh -f -i
zpty -w terminal "source ${(q)0:h}/zsh-recorder.zsh"
wait_for $OFFERS_ANSWERS/ready || exit 1
for line; do
  zpty -w -n terminal "$line"$'\t'
  wait_for $OFFERS_ANSWERS/$((++number)) || exit 1
  zpty -w -n terminal $'\x15'
done
zpty -d terminal
