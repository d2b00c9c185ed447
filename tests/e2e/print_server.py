"""A private print server: a real CUPS daemon on a socket of its own, whose printer keeps its jobs."""

import os
import shutil
import socket
import subprocess
import tempfile
import threading
import time
from pathlib import Path

from desktop import wait_for

SERVER_PROGRAMS = Path("/usr/lib/cups")
TOOLS = ("cupsd", "lp", "lpadmin", "lpstat", "cupsreject")
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


# A printer whose paper is not the one of the country.
PPD = """\
*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "KEEPER.PPD"
*Product: "(Keeper)"
*Manufacturer: "Test"
*ModelName: "Keeper"
*ShortNickName: "Keeper"
*NickName: "Keeper"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*cupsFilter2: "application/pdf application/pdf 0 -"
*OpenUI *PageSize/Media Size: PickOne
*DefaultPageSize: Legal
*PageSize A4/A4: ""
*PageSize Legal/US Legal: ""
*CloseUI: *PageSize
*OpenUI *PageRegion/Media Size: PickOne
*DefaultPageRegion: Legal
*PageRegion A4/A4: ""
*PageRegion Legal/US Legal: ""
*CloseUI: *PageRegion
*DefaultImageableArea: Legal
*ImageableArea A4/A4: "0 0 595 842"
*ImageableArea Legal/US Legal: "0 0 612 1008"
*DefaultPaperDimension: Legal
*PaperDimension A4/A4: "595 842"
*PaperDimension Legal/US Legal: "612 1008"
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
        wait_for(self._answers, "the print server")
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _write(self, name, text):
        path = self.folder / name
        path.write_text(text.format(folder=self.folder))
        return path

    def _ask(self, *command):
        environment = {"CUPS_SERVER": self.address, "PATH": os.environ["PATH"],
                       "HOME": str(self.folder), "LANG": "C.UTF-8"}
        return subprocess.run(command, env=environment, check=False, capture_output=True, text=True)

    def _answers(self):
        return "scheduler is running" in self._ask("lpstat", "-r").stdout

    def _run(self, *command):
        told = self._ask(*map(str, command))
        if told.returncode != 0:
            log = (self.folder / "error.log").read_text()
            raise AssertionError(f"{command} failed: {told.stderr}\n{log}")
        return told.stdout

    def add_default_printer(self):
        self._run("lpadmin", "-p", PRINTER, "-E", "-v", "keep:/")
        self._run("lpadmin", "-d", PRINTER)

    def take_legal_paper(self):
        """By the description that printers have of themselves."""
        self._run("lpadmin", "-p", PRINTER, "-P", self._write("keeper.ppd", PPD))

    def jobs(self):
        """What is in the queue and not printed yet."""
        return self._run("lpstat", "-o")

    def reject_jobs(self):
        self._run("cupsreject", PRINTER)


class SlowServer:
    """Stands before a server and takes its time over each request."""

    def __init__(self, server, seconds):
        self.server = server
        self.seconds = seconds

    def __enter__(self):
        self.folder = tempfile.mkdtemp(prefix="slow-")
        self.address = os.path.join(self.folder, "cups.sock")
        self.listener = socket.socket(socket.AF_UNIX)
        self.listener.bind(self.address)
        self.listener.listen(16)
        threading.Thread(target=self._serve, daemon=True).start()
        return self

    def __exit__(self, *_):
        self.listener.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def _serve(self):
        while True:
            try:
                client = self.listener.accept()[0]
            except OSError:
                return
            threading.Thread(target=self._connect, args=(client,), daemon=True).start()

    def _connect(self, client):
        with client, socket.socket(socket.AF_UNIX) as server:
            server.connect(self.server.address)
            answers = threading.Thread(target=self._pass, args=(server, client), daemon=True)
            answers.start()
            self._pass(client, server)
            answers.join()

    def _pass(self, source, target):
        while True:
            try:
                data = source.recv(65536)
                if data.startswith((b"POST ", b"GET ")):
                    time.sleep(self.seconds)
                if not data:
                    target.shutdown(socket.SHUT_WR)
                    return
                target.sendall(data)
            except OSError:
                return


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
