"""A private bus playing the system bus, zunde-service on it with its page,
and zunde-cli to read the service as the library does."""
import json
import os
import re
import shutil
import socket
import subprocess
import tempfile
import urllib.request
import urllib.error


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class Service:
    def __init__(self, build, source, slow_reply_ms=3000):
        self.build, self.source, self.slow_reply_ms = build, source, slow_reply_ms

    def __enter__(self):
        self.folder = tempfile.mkdtemp(prefix="zunde-page-")
        self.bus = subprocess.Popen(
            ["dbus-daemon", "--config-file=" + os.path.join(self.source, "tests/support/test-bus.conf"),
             "--nofork", "--print-address=1"], stdout=subprocess.PIPE, text=True)
        self.env = dict(os.environ, DBUS_SYSTEM_BUS_ADDRESS=self.bus.stdout.readline().strip())
        self.port = free_port()
        self.service = subprocess.Popen(
            [os.path.join(self.build, "service/zunde-service"), "--data-dir", self.folder,
             "--slow-reply-ms", str(self.slow_reply_ms), "--http", str(self.port)],
            stdout=subprocess.PIPE, env=self.env, text=True)
        assert self.service.stdout.readline().strip() == "zunde-service ready"
        self.url = self.service.stdout.readline().split()[-1]
        self.token = re.search(r'name="zunde-token" content="(\w+)"', self.get("/")[1]).group(1)
        return self

    def __exit__(self, *_):
        for process in (self.service, self.bus):
            process.terminate()
            process.wait()
            process.stdout.close()
        shutil.rmtree(self.folder)

    def request(self, method, path, body=None, headers=None):
        """(status, body text) of one request to the page's server."""
        data = body.encode() if body is not None else None
        ask = urllib.request.Request(self.url.rstrip("/") + path, data=data, method=method, headers=headers or {})
        try:
            with urllib.request.urlopen(ask, timeout=10) as reply:
                return reply.status, reply.read().decode()
        except urllib.error.HTTPError as refused:
            return refused.code, refused.read().decode()

    def get(self, path, **options):
        return self.request("GET", path, **options)

    def post(self, path, body, token=True, headers=None):
        headers = dict(headers or {}, **({"X-Zunde-Token": self.token} if token else {}))
        return self.request("POST", path, body, headers)

    def cli(self, *args):
        """zunde-cli's standard output; it reaches the service through the library."""
        return subprocess.run([os.path.join(self.build, "cli/zunde-cli"), *args], env=self.env, check=True,
                              capture_output=True, text=True, timeout=30).stdout

    def cli_json(self, *args):
        return json.loads(self.cli("--json", *args))
