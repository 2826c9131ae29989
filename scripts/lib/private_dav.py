"""A WebDAV server of one's own, with the user "u" and the password "p", and the program's account there."""

import os
import pathlib
import socket
import subprocess
import tempfile
import time

NGINX = """daemon off; pid {0}/pid; error_log {0}/error; load_module /usr/lib/nginx/modules/ngx_http_dav_ext_module.so; events{{}}
http{{ log_format counts '$request_method $status $request_length $bytes_sent'; access_log {0}/access counts;
client_body_temp_path {0}/b; proxy_temp_path {0}/p; fastcgi_temp_path {0}/f; uwsgi_temp_path {0}/u; scgi_temp_path {0}/s;
server{{ listen 127.0.0.1:{1}; root {0}/root; client_max_body_size 0; location /{{
dav_methods PUT DELETE MKCOL COPY MOVE; dav_ext_methods PROPFIND OPTIONS;
auth_basic dav; auth_basic_user_file {0}/users; }}}}}}
"""


class PrivateDav:
    """Entered, it runs: "nginx", which counts what it is asked, or "rclone", which keeps a part of what is cut off."""

    def __init__(self, program, kind="rclone"):
        self.folder = tempfile.TemporaryDirectory()
        self.path = pathlib.Path(self.folder.name)
        self.path.chmod(0o777)
        for name in ("root", "run"):
            (self.path / name).mkdir()
            (self.path / name).chmod(0o777)
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            self.port = free.getsockname()[1]
        self.url = f"http://127.0.0.1:{self.port}/Tavi/"
        self.files = self.path / "root/Tavi"
        self.tavi = [str(program), "--container", str(self.path / "container")]
        self.environment = os.environ | {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent", "HOME": str(self.path / "run")}
        if kind == "nginx":
            (self.path / "users").write_text("u:{PLAIN}p\n")
            (self.path / "conf").write_text(NGINX.format(self.path, self.port))
            self.command = ["/usr/sbin/nginx", "-e", str(self.path / "error"), "-c", str(self.path / "conf")]
            if os.getuid() == 0:
                self.command = ["setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", *self.command]
        else:
            self.command = ["rclone", "serve", "webdav", str(self.path / "root"), "--addr", f"127.0.0.1:{self.port}",
                            "--user", "u", "--pass", "p", "--dir-cache-time", "0s"]

    def __enter__(self):
        self.process = subprocess.Popen(self.command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, env=self.environment)
        for _ in range(200):
            with socket.socket() as attempt:
                if attempt.connect_ex(("127.0.0.1", self.port)) == 0:
                    break
            time.sleep(0.05)
        self.run("cloud", "connect", self.url, "--user", "u", password=b"p\n")
        self.documents = next((self.path / "container/Cloud").iterdir()) / "Documents"
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()
        self.folder.cleanup()

    def run(self, *words, password=b""):
        """Runs the program to its end; it must succeed. The processor seconds and the most kilobytes that it took."""
        process = self.start(*words, stdin=subprocess.PIPE)
        process.stdin.write(password)
        process.stdin.close()
        _, status, usage = os.wait4(process.pid, 0)
        process.returncode = os.waitstatus_to_exitcode(status)
        if process.returncode != 0:
            raise RuntimeError(f"{words} ended with {process.returncode}")
        return usage.ru_utime + usage.ru_stime, usage.ru_maxrss

    def start(self, *words, **options):
        return subprocess.Popen([*self.tavi, *words], env=self.environment, stdout=subprocess.DEVNULL, **options)

    def asked(self):
        """How often nginx has been asked, and how many bytes went in and out, since this was called last."""
        path = self.path / "access"
        # It writes a line after its answer.
        time.sleep(0.3)
        lines = [line.split() for line in path.read_text().splitlines()] if path.exists() else []
        os.truncate(path, 0)
        return len(lines), sum(int(line[2]) + int(line[3]) for line in lines)
