"""A WebDAV server that keeps files in memory and breaks every promise: hostile_dav.py PORT [CERTIFICATE-AND-KEY].

GET /?SEED makes it misbehave from then on, at random by that seed; GET /?0 makes it good again. It never loses what it
said that it keeps, since nothing could be proved of a server that does; all else is allowed: it overwrites whatever the
preconditions say, forgets to answer, answers and does nothing, keeps a part of what was sent, and lies about tags.
GET /?VERB=STATUS has it answer so from then on, with "=elsewhere" by a redirect to another origin (asked there it makes a
file "caught"), with "=path" by 400 where a destination is no path, with "=cut" by a part; GET /?VERB=0 makes that good again.
GET /?login=SCHEME has it ask for a login by that scheme, and count in the file ".asked" how often it had to.
"""

import email.utils
import http.server
import random
import ssl
import sys
import time
import urllib.parse
import xml.sax.saxutils

files, dice, rules = {"/": None}, None, {}
FAULTS = ["drop", "lose", "error", "busy", "part", "cut", "tag", "login"]


class Handler(http.server.BaseHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def log_message(self, *_):
        pass

    def reply(self, status, body=b"", cut=False, location=None, login=None):
        self.send_response(status)
        if login:
            self.send_header("WWW-Authenticate", login + ' realm="dav", nonce="1"')
        if location:
            self.send_header("Location", location)
        if cut:
            self.send_header("Transfer-Encoding", "chunked")
            self.end_headers()
            # As of a proxy whose server was lost: half of it, and a proper end.
            self.wfile.write((b"%x\r\n%s\r\n" % (len(body) // 2, body[:len(body) // 2]) if body else b"") + b"0\r\n\r\n")
            self.close_connection = True
            return
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def answer(self):
        global dice
        path = urllib.parse.unquote_to_bytes(self.path).decode("utf-8", "surrogateescape").rstrip("/") or "/"
        body = self.rfile.read(int(self.headers.get("Content-Length") or 0))
        if path.startswith("/?") and "=" in path:
            verb, rules[verb] = path[2:].split("=")
            return self.reply(200)
        if "login" in rules and "Authorization" not in self.headers:
            files["/Tavi/.asked"] = (files.get("/Tavi/.asked", (b"", 0))[0] + b".", time.time())
            return self.reply(401, login=rules["login"])
        rule = rules.get(self.command, "0")
        if rule != "0" and self.headers["Host"].startswith("localhost"):
            files["/Tavi/caught"] = (b"", 0)
        if rule.isdigit() and rule != "0":
            return self.reply(int(rule))
        if rule == "elsewhere":
            return self.reply(307, location=f"http://localhost:{sys.argv[1]}/Tavi/")
        if rule == "path" and not self.headers["Destination"].startswith("/"):
            return self.reply(400)
        if path.startswith("/?"):
            dice = random.Random(int(path[2:])) if path != "/?0" else None
            return self.reply(200)
        fault = dice.choice(FAULTS) if dice and dice.random() < 0.15 else None
        if fault == "drop":
            self.close_connection = True
            return None
        if fault in ("error", "busy", "login"):
            return self.reply({"error": 500, "busy": 423, "login": 403}[fault])
        status, answer = self.act(path, body, fault)
        if fault == "lose":
            self.close_connection = True
            return None
        return self.reply(status, answer, "cut" in (fault, rule))

    def act(self, path, body, fault):
        method = self.command
        if method == "PUT":
            files[path] = (body[:len(body) // 2] if fault == "part" else body, time.time())
            return 201, b""
        if method == "MKCOL":
            files.setdefault(path, None)
            return 201, b""
        if path not in files:
            return 404, b""
        if method == "GET":
            return 200, files[path][0]
        if method == "DELETE":
            del files[path]
            return 204, b""
        if method == "MOVE":
            target = urllib.parse.unquote_to_bytes(urllib.parse.urlparse(self.headers["Destination"]).path).decode(
                "utf-8", "surrogateescape")
            if target in files:
                return 412, b""
            if fault != "part":
                files[target] = files.pop(path)
            return 201, b""
        names = [path] + [name for name in files if self.headers["Depth"] == "1" and name.startswith(path + "/")]
        return 207, ("<d:multistatus xmlns:d='DAV:'>" + "".join(self.entry(name, fault) for name in names)
                     + "</d:multistatus>").encode()

    def entry(self, name, fault):
        href = xml.sax.saxutils.escape(urllib.parse.quote(name.encode("utf-8", "surrogateescape")))
        if files[name] is None:
            properties = "<d:resourcetype><d:collection/></d:resourcetype>"
        else:
            data, changed = files[name]
            tag = dice.random() if fault == "tag" else changed
            properties = (f"<d:resourcetype/><d:getcontentlength>{len(data)}</d:getcontentlength><d:getetag>\"{tag}\""
                          f"</d:getetag><d:getlastmodified>{email.utils.formatdate(changed)}</d:getlastmodified>")
        return (f"<d:response><d:href>{href}</d:href><d:propstat><d:prop>{properties}</d:prop>"
                "<d:status>HTTP/1.1 200 OK</d:status></d:propstat></d:response>")

    do_GET = do_PUT = do_MOVE = do_DELETE = do_MKCOL = do_PROPFIND = answer


server = http.server.ThreadingHTTPServer(("127.0.0.1", int(sys.argv[1])), Handler)
if len(sys.argv) > 2:
    context = ssl.SSLContext(ssl.PROTOCOL_TLS_SERVER)
    context.load_cert_chain(sys.argv[2])
    server.socket = context.wrap_socket(server.socket, server_side=True, do_handshake_on_connect=False)
server.serve_forever()
