# Read by the shell in the terminal: writes down what each completion would add to its list.

unsetopt beep
PS1= PS2=
fpath=($OFFERS_FOLDER $fpath)
autoload -Uz compinit
compinit -u -D
bindkey -e
bindkey '^I' complete-word

typeset -gi answers=0
typeset -ga offers=()

compadd() {
  local -a matches
  # With these options it only fills arrays or asks.
  if [[ " ${argv[1,(i)(-|--)]} " == *\ -[OAD]\ * ]]; then
    builtin compadd "$@"
    return
  fi
  builtin compadd -A matches "$@"
  offers+=("${(@)matches}")
  builtin compadd "$@"
}

write_offers() {
  (( ++answers ))
  print -l -- "${(@)offers}" >$OFFERS_ANSWERS/part
  mv $OFFERS_ANSWERS/part $OFFERS_ANSWERS/$answers
  offers=()
}

record() {
  offers=()
  zle complete-word
  write_offers
}
zle -N record
bindkey '^I' record
: >$OFFERS_ANSWERS/ready
