# complete.zsh PROGRAM LINE: what a zsh at a terminal makes of the line when the tab key is pressed.
# That shell says itself when it is ready, and what the line is then.
zmodload zsh/zpty || exit 77
zpty shell zsh -f -i
zpty -w shell "PS1=; stty columns 200 -echo; autoload -U compinit; compinit -D -u
source <(${(q)1} --completion zsh)
show() { zle complete-word; print -r -- \"<<\$BUFFER>>\" }; zle -N show; bindkey '^I' show
print rea\"\"dy"
zpty -r -m shell ignored '*ready*'
zpty -w -n shell "$2"$'\t'
zpty -r -m shell shown '*<<*>>*'
shown=${shown##*<<}
print -rn -- "${shown%%>>*}"
zpty -d shell
