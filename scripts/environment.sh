# Sourced by the scripts: what the programs expect of the environment on a bare machine.

case "${LC_ALL:-${LC_CTYPE:-${LANG:-}}}" in
  *[Uu][Tt][Ff]*) ;;
  *) export LC_ALL=C.UTF-8 ;;
esac

# Qt warns at every start when this is not a private directory.
if [[ -z ${XDG_RUNTIME_DIR:-} || ! -d ${XDG_RUNTIME_DIR:-} ]]; then
  mkdir -p build/runtime
  chmod 700 build/runtime
  export XDG_RUNTIME_DIR=$PWD/build/runtime
fi
