"""A private print server: a real CUPS daemon on a socket of its own, whose printer keeps its jobs."""

import os
import shutil
import socket
import subprocess
import tempfile
from pathlib import Path

from desktop import wait_for

SERVER_PROGRAMS = Path("/usr/lib/cups")
TOOLS = ("cupsd", "lp", "lpadmin", "cupsreject")
# Where the server's programs lie, which not everybody has in the PATH.
os.environ["PATH"] += ":/usr/sbin:/sbin"

PRINTER = "Keeper"

CUPSD_CONF = """\
Listen {folder}/cups.sock
LogLevel warn
Browsing Off
DefaultAuthType None
WebInterface No
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
"""

FILES_CONF = """\
ServerRoot {folder}
ServerBin {folder}/programs
DataDir /usr/share/cups
CacheDir {folder}/cache
StateDir {folder}/state
RequestRoot {folder}/spool
TempDir {folder}/temporary
AccessLog {folder}/access.log
ErrorLog {folder}/error.log
PageLog {folder}/page.log
FileDevice Yes
Sandboxing relaxed
"""

# Called with job, user, title, copies, options and perhaps a file; without arguments it is asked
# which devices there are.
BACKEND = """\
#!/bin/sh
[ $# -gt 0 ] || exit 0
cat ${{6:+"$6"}} > '{folder}/printed.part'
mv '{folder}/printed.part' '{folder}/printed.pdf'
"""


class PrintServer:
    """Entered as a context. Programs find it by the environment variable CUPS_SERVER."""

    def __enter__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="cups-"))
        self.folder.chmod(0o755)
        self.address = str(self.folder / "cups.sock")
        self.printed = self.folder / "printed.pdf"
        for name in ("cache", "state", "spool", "temporary", "programs/backend"):
            (self.folder / name).mkdir(parents=True)
        for name in ("daemon", "filter", "cgi-bin", "driver", "monitor", "notifier"):
            (self.folder / "programs" / name).symlink_to(SERVER_PROGRAMS / name)
        self._write("cupsd.conf", CUPSD_CONF)
        self._write("cups-files.conf", FILES_CONF)
        backend = self._write("programs/backend/keep", BACKEND)
        backend.chmod(0o700)
        self.process = subprocess.Popen(
            ["cupsd", "-f", "-c", self.folder / "cupsd.conf", "-s",
             self.folder / "cups-files.conf"],
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(lambda: os.path.exists(self.address), "the print server")
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _write(self, name, text):
        path = self.folder / name
        path.write_text(text.format(folder=self.folder))
        return path

    def _run(self, *command):
        environment = {"CUPS_SERVER": self.address, "PATH": os.environ["PATH"],
                       "HOME": str(self.folder)}
        subprocess.run(command, env=environment, check=True, capture_output=True)

    def add_default_printer(self):
        self._run("lpadmin", "-p", PRINTER, "-E", "-v", "keep:/")
        self._run("lpadmin", "-d", PRINTER)

    def reject_jobs(self):
        self._run("cupsreject", PRINTER)


class SilentServer:
    """Accepts every connection and never answers."""

    def __enter__(self):
        self.folder = tempfile.mkdtemp(prefix="silent-")
        self.address = os.path.join(self.folder, "cups.sock")
        self.listener = socket.socket(socket.AF_UNIX)
        self.listener.bind(self.address)
        self.listener.listen(16)
        return self

    def __exit__(self, *_):
        self.listener.close()
        shutil.rmtree(self.folder, ignore_errors=True)
