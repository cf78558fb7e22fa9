"""A session manager (XSMP) for one desk: what a desktop asks of its programs when its user logs out."""
import ctypes
import select

from polling import wait_until

SAVE_LOCAL, SAVE_BOTH = 1, 2
INTERACT_NONE, INTERACT_ANY = 0, 2
RESTART_NEVER = 3
MANAGER_EVENTS = ("register_client", "interact_request", "interact_done", "save_yourself_request",
                  "save_yourself_phase2_request", "save_yourself_done", "close_connection", "set_properties",
                  "delete_properties", "get_properties")
TEXT = 256
CLOSED = 2

_ice = ctypes.CDLL("libICE.so.6")
_sm = ctypes.CDLL("libSM.so.6")
_Pointer = ctypes.c_void_p
_int = ctypes.c_int


class _Value(ctypes.Structure):
    _fields_ = [("length", _int), ("value", _Pointer)]


class _Property(ctypes.Structure):
    _fields_ = [("name", ctypes.c_char_p), ("type", ctypes.c_char_p), ("count", _int), ("values", ctypes.POINTER(_Value))]


class _Callback(ctypes.Structure):
    _fields_ = [("function", _Pointer), ("data", _Pointer)]


class _Callbacks(ctypes.Structure):
    _fields_ = [(name, _Callback) for name in MANAGER_EVENTS]


_Function = ctypes.CFUNCTYPE
_TYPES = {
    "register_client": _Function(_int, _Pointer, _Pointer, _Pointer),
    "interact_request": _Function(None, _Pointer, _Pointer, _int),
    "interact_done": _Function(None, _Pointer, _Pointer, _int),
    "save_yourself_request": _Function(None, _Pointer, _Pointer, _int, _int, _int, _int, _int),
    "save_yourself_phase2_request": _Function(None, _Pointer, _Pointer),
    "save_yourself_done": _Function(None, _Pointer, _Pointer, _int),
    "close_connection": _Function(None, _Pointer, _Pointer, _int, _Pointer),
    "set_properties": _Function(None, _Pointer, _Pointer, _int, ctypes.POINTER(ctypes.POINTER(_Property))),
    "delete_properties": _Function(None, _Pointer, _Pointer, _int, _Pointer),
    "get_properties": _Function(None, _Pointer, _Pointer),
}
_NewClient = _Function(_int, _Pointer, _Pointer, ctypes.POINTER(ctypes.c_ulong), ctypes.POINTER(_Callbacks), _Pointer)
_HostAllowed = _Function(_int, ctypes.c_char_p)
_ErrorHandler = _Function(None, _Pointer)

for _call, _result, _arguments in (
        (_ice.IceListenForConnections, _int, [ctypes.POINTER(_int), ctypes.POINTER(ctypes.POINTER(_Pointer)), _int,
                                              ctypes.c_char_p]),
        (_ice.IceGetListenConnectionNumber, _int, [_Pointer]),
        (_ice.IceGetListenConnectionString, ctypes.c_char_p, [_Pointer]),
        (_ice.IceSetHostBasedAuthProc, None, [_Pointer, _HostAllowed]),
        (_ice.IceAcceptConnection, _Pointer, [_Pointer, ctypes.POINTER(_int)]),
        (_ice.IceConnectionNumber, _int, [_Pointer]),
        (_ice.IceProcessMessages, _int, [_Pointer, _Pointer, _Pointer]),
        (_ice.IceCloseConnection, _int, [_Pointer]),
        (_ice.IceFreeListenObjs, None, [_int, _Pointer]),
        (_ice.IceSetIOErrorHandler, _Pointer, [_ErrorHandler]),
        (_sm.SmsInitialize, _int, [ctypes.c_char_p, ctypes.c_char_p, _NewClient, _Pointer, _HostAllowed, _int,
                                   ctypes.c_char_p]),
        (_sm.SmsGenerateClientID, _Pointer, [_Pointer]),
        (_sm.SmsRegisterClientReply, _int, [_Pointer, _Pointer]),
        (_sm.SmsSaveYourself, None, [_Pointer, _int, _int, _int, _int]),
        (_sm.SmsSaveComplete, None, [_Pointer]),
        (_sm.SmsShutdownCancelled, None, [_Pointer]),
        (_sm.SmsDie, None, [_Pointer]),
        (_sm.SmsCleanUp, None, [_Pointer])):
    _call.restype, _call.argtypes = _result, _arguments

_ignore_error = _ErrorHandler(lambda connection: None)
_ice.IceSetIOErrorHandler(_ignore_error)


class SessionManager:
    """Serves its clients whenever a test waits by its `wait`. One in a test process at a time."""

    _current = None
    _initialized = False

    def __init__(self):
        SessionManager._current = self
        self._client = None
        self._connections = []
        self.properties = {}
        self.saved = 0
        self.left = False
        self._initialize()
        self._listen()

    @classmethod
    def _initialize(cls):
        """The library can be set up once in a process."""
        if cls._initialized:
            return
        cls._host_allowed = _HostAllowed(lambda host: 1)
        cls._new_client = _NewClient(lambda client, data, mask, callbacks, reason:
                                     cls._current._welcome(client, mask, callbacks))
        cls._functions = {name: kind(cls._dispatcher(name)) for name, kind in _TYPES.items()}
        text = ctypes.create_string_buffer(TEXT)
        if not _sm.SmsInitialize(b"ambertask", b"1", cls._new_client, None, cls._host_allowed, TEXT, text):
            raise RuntimeError(text.value.decode())
        cls._initialized = True

    @classmethod
    def _dispatcher(cls, name):
        def dispatch(client, data, *arguments):
            return getattr(cls._current, "_on_" + name)(client, *arguments)
        return dispatch

    def _listen(self):
        self._count = _int()
        self._listeners = ctypes.POINTER(_Pointer)()
        text = ctypes.create_string_buffer(TEXT)
        if not _ice.IceListenForConnections(ctypes.byref(self._count), ctypes.byref(self._listeners), TEXT, text):
            raise RuntimeError(text.value.decode())
        addresses = []
        for listener in self._each_listener():
            _ice.IceSetHostBasedAuthProc(listener, self._host_allowed)
            addresses.append(_ice.IceGetListenConnectionString(listener).decode())
        # The programs of a desk are on this machine.
        self.address = next(address for address in addresses if address.startswith("local/"))

    def _each_listener(self):
        return [self._listeners[index] for index in range(self._count.value)]

    def close(self):
        for connection in self._connections:
            _ice.IceCloseConnection(connection)
        _ice.IceFreeListenObjs(self._count, ctypes.cast(self._listeners, _Pointer))

    # What a test says and waits for -----------------------------------------------------------------------

    def serve(self):
        """Answers what has arrived."""
        for listener in self._each_listener():
            if _readable(_ice.IceGetListenConnectionNumber(listener)):
                connection = _ice.IceAcceptConnection(listener, ctypes.byref(_int()))
                if connection:
                    self._connections.append(connection)
        for connection in list(self._connections):
            if _readable(_ice.IceConnectionNumber(connection)) and \
                    _ice.IceProcessMessages(connection, None, None) != 0:
                self._connections.remove(connection)

    def wait(self, condition, what):
        def look():
            self.serve()
            return condition()
        return wait_until(look, what)

    def wait_joined(self):
        """Returns once the program belongs to the session and has saved its state for the first time."""
        self.wait(lambda: self._client and self.saved > 0, "the program joins the session")

    def ask_to_save(self):
        """The first half of a log-out: every program is asked whether it is ready."""
        before = self.saved
        _sm.SmsSaveYourself(self._client, SAVE_BOTH, 1, INTERACT_ANY, 0)
        self.wait(lambda: self.saved > before, "the program is ready for the log-out")

    def cancel(self):
        """Another program wants the session to go on."""
        _sm.SmsShutdownCancelled(self._client)
        self.serve()

    def end(self):
        """The second half of a log-out: every program is told to end."""
        _sm.SmsDie(self._client)

    # What the program says --------------------------------------------------------------------------------

    def _welcome(self, client, mask, callbacks):
        self._client = client
        mask[0] = (1 << len(MANAGER_EVENTS)) - 1
        for name in MANAGER_EVENTS:
            getattr(callbacks.contents, name).function = ctypes.cast(self._functions[name], _Pointer)
        return 1

    def _on_register_client(self, client, previous):
        if previous:
            return 0
        _sm.SmsRegisterClientReply(client, _sm.SmsGenerateClientID(client))
        _sm.SmsSaveYourself(client, SAVE_LOCAL, 0, INTERACT_NONE, 0)
        return 1

    def _on_set_properties(self, client, count, properties):
        for index in range(count):
            entry = properties[index].contents
            self.properties[entry.name.decode()] = [ctypes.string_at(entry.values[i].value, entry.values[i].length)
                                                    for i in range(entry.count)]

    def _on_save_yourself_done(self, client, success):
        self.saved += 1

    def _on_close_connection(self, client, count, reasons):
        self.left = True
        _sm.SmsCleanUp(client)
        self._client = None

    def _on_interact_request(self, client, kind):
        raise AssertionError("the program wants to ask something at the log-out")

    def _on_interact_done(self, client, cancel):
        pass

    def _on_save_yourself_request(self, client, *arguments):
        pass

    def _on_save_yourself_phase2_request(self, client):
        pass

    def _on_delete_properties(self, client, count, names):
        pass

    def _on_get_properties(self, client):
        pass


def _readable(descriptor):
    return bool(select.select([descriptor], [], [], 0)[0])
