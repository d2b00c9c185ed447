"""A small session manager on a real ICE socket: registers one program, ends its session, tells it all.

It reads commands, one a line: "end" asks the program to save itself because the session ends, "end
unasked" forbids it to ask anything, "die" lets it go. It prints what the program does.
"""

import atexit
import ctypes
import select
import sys
from ctypes import CFUNCTYPE, POINTER, byref, c_char_p, c_int, c_ulong, c_void_p

SAVE_LOCAL, SAVE_BOTH = 1, 2
INTERACT_NONE, INTERACT_ANY = 0, 2
ALL_CALLBACKS = 0x3FF
CONNECTING = 0

ice = ctypes.CDLL("libICE.so.6")
sm = ctypes.CDLL("libSM.so.6")
ice.IceAcceptConnection.restype = c_void_p
ice.IceComposeNetworkIdList.restype = c_char_p
sm.SmsGenerateClientID.restype = c_void_p


def tell(text):
    print(text, flush=True)


class Callback(ctypes.Structure):
    _fields_ = [("function", c_void_p), ("data", c_void_p)]


class Session:
    """The conversation with the one program."""

    def __init__(self):
        self.connection = None
        self.is_new = True
        self.functions = []  # kept, since the library holds only their addresses
        self.new_client = CFUNCTYPE(c_int, c_void_p, c_void_p, POINTER(c_ulong), POINTER(Callback),
                                    c_void_p)(self.accept_client)

    def accept_client(self, connection, _, mask, callbacks, __):
        # In the order of the library's own structure, each with the number of its arguments.
        for row, (function, arguments) in enumerate((
                (self.register, 1), (self.interact_request, 1), (self.interact_done, 1),
                (self.ignored, 6), (self.ignored, 0), (self.save_done, 1), (self.closed, 2),
                (self.ignored, 2), (self.ignored, 2), (self.ignored, 0))):
            prototype = CFUNCTYPE(c_int, c_void_p, c_void_p, *[c_void_p] * arguments)
            self.functions.append(prototype(function))
            callbacks[row].function = ctypes.cast(self.functions[-1], c_void_p)
        mask[0] = ALL_CALLBACKS
        self.connection = c_void_p(connection)
        return 1

    def register(self, *_):
        client = sm.SmsGenerateClientID(self.connection)
        sm.SmsRegisterClientReply(self.connection, c_void_p(client))
        sm.SmsSaveYourself(self.connection, SAVE_LOCAL, 0, INTERACT_NONE, 0)
        return 1

    def interact_request(self, *_):
        sm.SmsInteract(self.connection)
        return 1

    def interact_done(self, _, __, cancels):
        if cancels:
            tell("cancelled")
            sm.SmsShutdownCancelled(self.connection)
        return 1

    def save_done(self, *_):
        if self.is_new:
            self.is_new = False
            sm.SmsSaveComplete(self.connection)
            tell("registered")
        else:
            tell("saved")
        return 1

    def closed(self, *_):
        tell("left")
        return 1

    def ignored(self, *_):
        return 1

    def obey(self, command):
        if command.startswith("end"):
            style = INTERACT_NONE if command == "end unasked" else INTERACT_ANY
            sm.SmsSaveYourself(self.connection, SAVE_BOTH, 1, style, 0)
        elif command == "die":
            sm.SmsDie(self.connection)


def main():
    session = Session()
    anybody = CFUNCTYPE(c_int, c_char_p)(lambda _: 1)
    error = ctypes.create_string_buffer(256)
    forgiving = CFUNCTYPE(None, c_void_p)(lambda _: None)  # otherwise a program that ends ends us too
    ice.IceSetIOErrorHandler(forgiving)
    sm.SmsInitialize(b"test", b"1", session.new_client, None, anybody, len(error), error)
    count, sockets = c_int(), POINTER(c_void_p)()
    if not ice.IceListenForConnections(byref(count), byref(sockets), len(error), error):
        sys.exit(error.value.decode())
    listening = [c_void_p(sockets[row]) for row in range(count.value)]
    for listener in listening:
        ice.IceSetHostBasedAuthProc(listener, anybody)
    # A socket that is left behind is in the way of the next manager that gets this process's number.
    atexit.register(ice.IceFreeListenObjs, count, sockets)
    tell(ice.IceComposeNetworkIdList(count, sockets).decode())

    numbers = {ice.IceGetListenConnectionNumber(listener): listener for listener in listening}
    conversations = {}
    while True:
        ready, _, _ = select.select([sys.stdin, *numbers, *conversations], [], [])
        for source in ready:
            if source is sys.stdin:
                command = sys.stdin.readline()
                if not command:
                    return
                session.obey(command.strip())
            elif source in numbers:
                status = c_int()
                connection = c_void_p(ice.IceAcceptConnection(numbers[source], byref(status)))
                ice.IceSetShutdownNegotiation(connection, 0)
                while ice.IceConnectionStatus(connection) == CONNECTING:
                    ice.IceProcessMessages(connection, None, None)
                conversations[ice.IceConnectionNumber(connection)] = connection
            elif ice.IceProcessMessages(conversations[source], None, None) != 0:
                del conversations[source]


if __name__ == "__main__":
    main()
