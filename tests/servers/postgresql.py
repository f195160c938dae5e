"""PostgreSQL for tests."""

import signal
from pathlib import Path

from server import Server

PORT = 5432  # part of the socket's name, nothing listens on a network


class PostgreSql(Server):
    name = "postgresql"
    driver = "PostgreSQL Unicode"
    driver_file = "psqlodbcw.so"
    _orderly = signal.SIGINT  # ends the sessions and then itself

    @staticmethod
    def _program(name: str) -> str:
        found = sorted(Path("/usr/lib/postgresql").glob(f"*/bin/{name}"))
        if not found:
            raise RuntimeError(f"PostgreSQL's {name} is not installed")
        return str(found[-1])

    @property
    def socket(self) -> Path:
        return self.folder / f".s.PGSQL.{PORT}"

    def _make(self) -> None:
        passwords = self.folder / "password"
        passwords.write_text(self.password + "\n")
        passwords.chmod(0o644)
        self._run(self._program("initdb"), "-D", f"{self.folder}/data", "-U", "postgres", "--no-sync", "-E", "UTF8",
                  "--locale=C.UTF-8", "--auth=trust")
        access = self.folder / "data/pg_hba.conf"
        access.write_text("local all postgres trust\nlocal all all scram-sha-256\n")

    def _command(self) -> list[str]:
        options = {"listen_addresses": "", "unix_socket_directories": str(self.folder), "port": str(PORT),
                   # Small and quick; what was committed survives the end of the process.
                   "fsync": "off", "full_page_writes": "off", "shared_buffers": "16MB", "max_connections": "40",
                   "lock_timeout": "1s", "deadlock_timeout": "100ms", "jit": "off"}
        return [self._program("postgres"), "-D", f"{self.folder}/data",
                *(f"--{name}={value}" for name, value in options.items())]

    def _is_ready(self) -> bool:
        lines = (self.folder / "data/postmaster.pid").read_text().split("\n") if self._has_pid_file() else []
        return len(lines) > 7 and lines[0] == str(self.pid) and lines[7].strip() == "ready"

    def _has_pid_file(self) -> bool:
        return (self.folder / "data/postmaster.pid").exists()

    def _clean_up(self) -> None:
        # A later process with the same number would be taken for the server that was killed.
        (self.folder / "data/postmaster.pid").unlink(missing_ok=True)

    def _prepare(self) -> None:
        psql = [self._program("psql"), "-X", "-q", "-v", "ON_ERROR_STOP=1", "-h", str(self.folder), "-p", str(PORT),
                "-U", "postgres"]
        self._run(*psql, "-d", "postgres", text=f"""
            create role {self.user} login password '{self.password}';
            create database {self.database} owner {self.user};
            """)

    def connection_string(self, driver: str, administrator: bool = False, socket: Path | None = None) -> str:
        who = "UID=postgres" if administrator else f"UID={self.user};PWD={self.password}"
        return f"DRIVER={{{driver}}};Servername={(socket or self.socket).parent};Port={PORT};Database={self.database};{who}"
