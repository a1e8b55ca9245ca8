# comune.py - what the tests of the program share: a folder of their own, the program run in it, systems.
#
# Each module is a script whose argument is the path of the program. A test that leaves anything behind, in its
# folder or in the temporary one, fails.

import json
import os
import resource
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SECONDI_MASSIMI = 120  # a guard against hanging, nothing else
NESSUNO = 65534
# What a program says when it dies instead of speaking to its user.
CROLLI = ("Sanitizer", "runtime error:", "terminate called", "json.exception", "Assertion", "std::")

PROGRAMMA = ""


def limita_file():
    """Runs in the child: no file may grow beyond a few columns."""
    resource.setrlimit(resource.RLIMIT_FSIZE, (100, 100))


def avvia():
    """Runs the tests of the calling script over the program given as its first argument."""
    global PROGRAMMA
    PROGRAMMA = os.path.abspath(sys.argv.pop(1))
    unittest.main(verbosity=2)


def leggi_terminale(capo, fine):
    """What a terminal shows, until `fine` says of all of it that it is enough or its other end is closed."""
    testo = ""
    while not fine(testo):
        try:
            pezzo = os.read(capo, 65536)
        except OSError:
            break
        testo += pezzo.decode()
    return testo


class Prova(unittest.TestCase):
    """A test with a folder, where the program works, and a temporary folder, which must stay empty."""

    def setUp(self):
        self.radice = Path(tempfile.mkdtemp(prefix="ordavel-programma-"))
        self.addCleanup(shutil.rmtree, self.radice, ignore_errors=True)
        self.radice.chmod(0o755)
        self.cartella = self.radice / "lavoro"
        self.temp = self.radice / "temp"
        self.cartella.mkdir()
        self.temp.mkdir()

    def assert_niente_avanzi(self):
        """No provisional file in any folder, and nothing at all in the temporary one."""
        self.assertEqual([str(p) for p in self.cartella.rglob(".*")], [])
        self.assertEqual(os.listdir(self.temp), [])

    def apri(self, *parole, **opzioni):
        """The program as a running process; its streams are pipes unless told otherwise."""
        ambiente = dict(os.environ, TMPDIR=str(self.temp), LC_ALL="C.UTF-8")
        ambiente.update(opzioni.pop("env", {}))
        canali = {"stdin": subprocess.DEVNULL, "stdout": subprocess.PIPE, "stderr": subprocess.PIPE}
        canali.update(opzioni)
        return subprocess.Popen([PROGRAMMA, *map(str, parole)], cwd=self.cartella, env=ambiente, **canali)

    def termina(self, processo, atteso):
        """Waits for a process; checks its exit code, its messages, and that nothing is left behind."""
        try:
            uscita, messaggi = processo.communicate(timeout=SECONDI_MASSIMI)
        finally:
            processo.kill()
            processo.wait()
            for canale in (processo.stdout, processo.stderr):
                if canale:
                    canale.close()
        uscita, messaggi = ((t or b"").decode() for t in (uscita, messaggi))
        tutto = f"{processo.args}\n{uscita}\n{messaggi}"
        self.assertEqual(processo.returncode, atteso, tutto)
        for crollo in CROLLI:
            self.assertNotIn(crollo, messaggi, tutto)
        for riga in messaggi.splitlines():
            self.assertRegex(riga, r"^(avviso: |errore: |Prova \")", tutto)
        self.assert_niente_avanzi()
        return uscita, messaggi

    def esegui(self, *parole, atteso=0, ingresso=None, **opzioni):
        """Runs the program to its end. Gives what it wrote on the standard output and on the error stream."""
        if ingresso is None:
            return self.termina(self.apri(*parole, **opzioni), atteso)
        with tempfile.TemporaryFile() as file:
            file.write(ingresso)
            file.seek(0)
            return self.termina(self.apri(*parole, stdin=file, **opzioni), atteso)

    def esegui_json(self, *parole, **opzioni):
        """The same with --json. Gives the object and the messages."""
        uscita, messaggi = self.esegui(*parole, "--json", **opzioni)
        return json.loads(uscita), messaggi

    def scrivi(self, nome, contenuto):
        """A file in the folder, from bytes, from a text or, for anything else, as JSON."""
        percorso = self.cartella / nome
        if not isinstance(contenuto, (bytes, str)):
            contenuto = json.dumps(contenuto)
        percorso.write_bytes(contenuto.encode() if isinstance(contenuto, str) else contenuto)
        return nome

    def leggi(self, nome):
        return (self.cartella / nome).read_bytes()

    def crea(self, sistema, nome="prova.sic"):
        """A system file from the object of a system."""
        _, messaggi = self.esegui("crea", self.scrivi(nome + ".json", sistema), nome)
        self.assertEqual(messaggi, "")
        return nome

    def rifiuta(self, *parole, intatti=(), dice=(), atteso=1, **opzioni):
        """A command that must be refused in words, and leave the named files as they are and no new one."""
        prima = {nome: self.leggi(nome) for nome in intatti}
        elenco = sorted(os.listdir(self.cartella))
        uscita, messaggi = self.esegui(*parole, atteso=atteso, **opzioni)
        self.assertNotEqual(messaggi, "")
        for testo in [dice] if isinstance(dice, str) else dice:
            self.assertIn(testo, messaggi)
        self.assertNotIn(".ordavel-", messaggi, "a provisional name is nothing to its user")
        self.assertEqual({nome: self.leggi(nome) for nome in intatti}, prima)
        self.assertEqual(sorted(os.listdir(self.cartella)), elenco)
        return uscita, messaggi

    def senza_privilegi(self):
        """Options that run the program without the rights of root; whoever is not root has none anyway."""
        if os.geteuid() != 0:
            return {}
        opzioni = {"user": NESSUNO, "group": NESSUNO, "extra_groups": []}
        try:
            self.apri("--version", **opzioni).communicate(timeout=SECONDI_MASSIMI)
        except OSError as errore:
            self.skipTest(f"the program cannot be run by another user here: {errore}")
        for cartella in (self.temp, self.cartella):
            cartella.chmod(0o777)
        for file in self.cartella.iterdir():
            file.chmod(0o666)
        return opzioni

    def monta_disco(self, nome, byte):
        """A small disk on a new folder; skips the test where that is not allowed."""
        posto = self.cartella / nome
        posto.mkdir()
        comando = ["mount", "-t", "tmpfs", "-o", f"size={byte}", "tmpfs", str(posto)]
        if os.geteuid() != 0 or shutil.which("mount") is None:
            self.skipTest("only root mounts a small disk")
        fatto = subprocess.run(comando, capture_output=True, check=False)
        if fatto.returncode != 0:
            self.skipTest(f"no small disk here: {fatto.stderr.decode().strip()}")
        self.addCleanup(subprocess.run, ["umount", "-l", str(posto)], check=False)
        return posto
