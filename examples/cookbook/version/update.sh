#!/bin/sh
# Installs and updates the database of the connection string in CUENTAS_DB: update.sh ENGINE
set -eu
cd "$(dirname "$0")"
qvrscript install --engine "$1" --connection-env CUENTAS_DB . Cuentas
qvrscript update --engine "$1" --connection-env CUENTAS_DB --from-query "SELECT Version FROM Esquema" . Cuentas
