#!/usr/bin/env python3
# SPDX-License-Identifier: LGPL-2.1-or-later
"""Prints a file of exported accounts as docs/export-format.md describes it: exported-accounts-1.json was made by this."""
import base64
import ctypes
import ctypes.util
import hashlib
import json
import os

PASS_PHRASE = "schönes Wetter"
OPERATIONS, MEMORY = 2, 64 * 1024 * 1024  # others than those that the program writes

sodium = ctypes.CDLL(ctypes.util.find_library("sodium"))
assert sodium.sodium_init() >= 0


def text(data):
    return base64.b64encode(data).decode()


def canonical(value):
    """By RFC 8785; all names here are ASCII, so that their order is that of Python."""
    return json.dumps(value, sort_keys=True, separators=(",", ":"), ensure_ascii=False).encode()


def digest(value):
    return text(hashlib.blake2b(canonical(value), digest_size=32).digest())


def seal(content):
    salt, nonce, key = os.urandom(16), os.urandom(24), ctypes.create_string_buffer(32)
    phrase = PASS_PHRASE.encode()
    assert sodium.crypto_pwhash(
        key, ctypes.c_ulonglong(32), phrase, ctypes.c_ulonglong(len(phrase)), salt, ctypes.c_ulonglong(OPERATIONS),
        ctypes.c_size_t(MEMORY), 2) == 0  # fmt: skip
    data = ctypes.create_string_buffer(len(content) + 16)
    assert sodium.crypto_secretbox_easy(data, content, ctypes.c_ulonglong(len(content)), nonce, key) == 0
    box = {
        "derivation": "argon2id13", "operations": OPERATIONS, "memory": MEMORY, "salt": text(salt),
        "cipher": "xsalsa20poly1305", "nonce": text(nonce), "data": text(data.raw),
    }  # fmt: skip
    box["checksum"] = digest(box)
    return box


def account(login, protocol, **others):
    return {
        "login": login, "protocol": protocol, "alias": f"Alias of {login}", "enabled": True, "remember_password": True,
        "default_presence": "away", "last_description": "two\nlines “quoted” \\ \"",
        "settings": {"server": "chat.example.org", "port": "5222"}, "secret_settings": ["proxy_password"], **others,
    }  # fmt: skip


file = {
    "format": "kirv-accounts",
    "version": 1,
    "accounts": [
        account("anna@irc.example.org", "IRC", enabled=False, trusted_certificate=64 * "a"),
        account("anna@example.org", "XMPP"),
    ],
    "main_account": {"login": "anna@irc.example.org", "protocol": "IRC"},
}
secrets = [
    {"password": f"password of {each['login']}", "settings": {"proxy_password": f"secret of {each['login']}"}}
    for each in file["accounts"]
]
file["secrets"] = seal(json.dumps({"accounts": secrets, "binding": digest(file)}).encode())
print(json.dumps(file, indent=4, ensure_ascii=False))
