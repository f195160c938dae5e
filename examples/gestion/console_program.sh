#!/usr/bin/env bash
# The example's database once more, by the console program alone: a connection file, the installation and the update.
# Usage: console_program.sh DATABASE FOLDER SCRIPTS PROGRAM...
# FOLDER and SCRIPTS as the program takes paths; DATABASE as the database driver does.
set -euo pipefail
database=$1 folder=$2 scripts=$3
shift 3
program=("$@")

# Secrets come by the environment: arguments can be seen by others.
export GESTION_ID='Gestión 2024' GESTION_ADMIN_PASSWORD='clave del administrador' GESTION_CLIENT_PASSWORD='clave del cliente'

qvrscript() {
  echo "> qvrscript $*"
  "${program[@]}" "$@" | tr -d '\r' | sed '/^commands done: /d'  # one for each command
}

other="Extended Properties=\"DRIVER={SQLite3};Database=$database;\""
file=(--cfp "$folder" consola --id-env GESTION_ID)
# What the library writes of the version: one row, one number.
query='SELECT [Versión] FROM [Esquema]'

qvrscript cfp new --id-env GESTION_ID --engine jet --provider MSDASQL --catalog Gestion --admin-user Admin \
  --admin-password-env GESTION_ADMIN_PASSWORD --client-user app --client-password-env GESTION_CLIENT_PASSWORD \
  --other "$other" "$folder" consola
qvrscript cfp check --id-env GESTION_ID "$folder" consola
qvrscript check "$scripts"
qvrscript install --engine jet --plan "${file[@]}" "$scripts" Gestion
qvrscript install --engine jet --rehearse "${file[@]}" "$scripts" Gestion
qvrscript install --engine jet "${file[@]}" "$scripts" Gestion
qvrscript update --engine jet --from-query "$query" --plan "${file[@]}" "$scripts" Gestion
qvrscript update --engine jet --from-query "$query" "${file[@]}" "$scripts" Gestion
qvrscript update --engine jet --from-query "$query" "${file[@]}" "$scripts" Gestion
