"""Programs that may hang, crash or never stop printing, since what they run was changed on purpose."""

import os
import resource
import selectors
import signal
import subprocess
import time

MEMORY = 4 << 30
FILE_SIZE = 1 << 30
TIMED_OUT = "time limit"


class Ended:
    """How a program ended: `failure` is empty when it held, else what was wrong first."""

    def __init__(self, failure, seconds, crashed=False):
        self.failure = failure
        self.seconds = seconds
        self.crashed = crashed
        self.timed_out = failure == TIMED_OUT


def run(command, folder, limit, environment, failure_in):
    """Runs a program until it ends, until a line of its output holds a failure, or until `limit` seconds are over.
    `failure_in` gives what a line tells of a failure, nothing for any other line."""
    begin = time.monotonic()
    process = subprocess.Popen(
        command,
        cwd=folder,
        env={**os.environ, **environment},
        stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        start_new_session=True,
        preexec_fn=bounded,
    )
    try:
        failure = watch(process, begin + limit, failure_in)
    finally:
        stop(process)
    seconds = time.monotonic() - begin
    if failure:
        return Ended(failure, seconds)
    status = process.returncode
    if status == 0:
        return Ended("", seconds)
    name = os.path.basename(command[0])
    return Ended(f"{name}: signal {-status}" if status < 0 else f"{name}: status {status}", seconds, status < 0)


def bounded():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_SIZE, FILE_SIZE))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def watch(process, deadline, failure_in):
    """The first failure that is told; empty when the output ends without one."""
    with selectors.DefaultSelector() as selector:
        selector.register(process.stdout, selectors.EVENT_READ)
        rest = b""
        while True:
            left = deadline - time.monotonic()
            if left <= 0:
                return TIMED_OUT
            if not selector.select(left):
                continue
            piece = os.read(process.stdout.fileno(), 1 << 16)
            if not piece:
                break
            *lines, rest = (rest + piece).split(b"\n")
            rest = rest[-(1 << 16) :]
            for line in lines:
                failure = failure_in(line.decode(errors="replace"))
                if failure:
                    return failure
    try:
        process.wait(max(0.1, deadline - time.monotonic()))
    except subprocess.TimeoutExpired:
        return TIMED_OUT
    return ""


def stop(process):
    """Ends what was started here, with all that it started itself."""
    if process.poll() is None:
        os.killpg(process.pid, signal.SIGKILL)
    process.wait()
    process.stdout.close()
