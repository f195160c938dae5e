"""MariaDB for tests."""

import signal
import socket
from pathlib import Path

from server import Server


class MariaDb(Server):
    name = "mariadb"
    driver = "MariaDB Unicode"
    driver_file = "libmaodbc.so"
    _orderly = signal.SIGTERM

    @property
    def socket(self) -> Path:
        return self.folder / "socket"

    def _make(self) -> None:
        self._run("mariadb-install-db", "--no-defaults", f"--datadir={self.folder}/data", "--skip-test-db",
                  "--auth-root-authentication-method=normal")

    def _command(self) -> list[str]:
        return ["/usr/sbin/mariadbd", "--no-defaults", f"--datadir={self.folder}/data", f"--socket={self.socket}",
                f"--pid-file={self.folder}/pid", "--skip-networking", "--character-set-server=utf8mb4",
                "--collation-server=utf8mb4_unicode_ci",
                # Small and quick; what was committed survives the end of the process.
                "--innodb-buffer-pool-size=32M", "--innodb-log-file-size=16M", "--innodb-flush-log-at-trx-commit=2",
                "--innodb-use-native-aio=0", "--innodb-lock-wait-timeout=1", "--max-allowed-packet=64M"]

    def _is_ready(self) -> bool:
        with socket.socket(socket.AF_UNIX) as client:
            client.settimeout(1)
            try:
                client.connect(str(self.socket))
                return client.recv(5)[4:] == b"\x0a"  # the protocol's version; an error has another byte there
            except OSError:
                return False

    def _prepare(self) -> None:
        self._run("mariadb", "--no-defaults", f"--socket={self.socket}", "--user=root",
                  "--default-character-set=utf8mb4", text=f"""
            create database {self.database};
            create user {self.user}@localhost identified by '{self.password}';
            grant all on {self.database}.* to {self.user}@localhost;
            grant select on mysql.proc to {self.user}@localhost;
            """)

    def connection_string(self, driver: str, administrator: bool = False, socket: Path | None = None) -> str:
        who = "UID=root" if administrator else f"UID={self.user};PWD={self.password}"
        return f"DRIVER={{{driver}}};SOCKET={socket or self.socket};{who};DATABASE={self.database};CHARSET=utf8mb4"
