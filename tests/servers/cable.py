"""A socket in front of a server's own, whose connections can lose what the server answers."""

import select
import socket
import threading
from pathlib import Path


class Cable:
    """Passes bytes on in both directions, for as many connections as come. Use it in a `with` statement."""

    def __init__(self, front: Path, server: Path) -> None:
        self._server = str(server)
        self._front = socket.socket(socket.AF_UNIX)
        self._front.bind(str(front))
        front.chmod(0o777)
        self._front.listen()
        self._connections: list["_Connection"] = []
        self._lock = threading.Lock()

    def __enter__(self) -> "Cable":
        threading.Thread(target=self._serve, daemon=True).start()
        return self

    def __exit__(self, *_) -> None:
        self._front.close()

    def lose_answer(self) -> None:
        """Each connection that is there now ends where the server answers next, which the client never sees."""
        with self._lock:
            for each in self._connections:
                each.loses_answer = True

    def _serve(self) -> None:
        while True:
            try:
                client, _ = self._front.accept()
            except OSError:
                return  # closed
            connection = _Connection(client, self._server)
            with self._lock:
                self._connections.append(connection)
            threading.Thread(target=self._pass_on, args=[connection], daemon=True).start()

    def _pass_on(self, connection: "_Connection") -> None:
        connection.pass_on()
        with self._lock:
            self._connections.remove(connection)


class _Connection:
    def __init__(self, client: socket.socket, server: str) -> None:
        self.loses_answer = False
        self._client = client
        self._server_path = server

    def pass_on(self) -> None:
        with self._client as client, socket.socket(socket.AF_UNIX) as server:
            try:
                server.connect(self._server_path)
                while self._pass_once(client, server):
                    pass
            except OSError:
                pass  # one side has ended: so does the other

    def _pass_once(self, client: socket.socket, server: socket.socket) -> bool:
        for ready in select.select([client, server], [], [])[0]:
            data = ready.recv(65536)
            if not data or (ready is server and self.loses_answer):
                return False
            (client if ready is server else server).sendall(data)
        return True
