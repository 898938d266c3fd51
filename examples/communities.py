"""Prints communities through the library for C alone: python3 communities.py LIBRARY LINKS K"""

import ctypes
import sys


class Rows(ctypes.Structure):
    _fields_ = [("size", ctypes.c_size_t), ("starts", ctypes.POINTER(ctypes.c_size_t)),
                ("values", ctypes.POINTER(ctypes.c_uint32))]


class Level(ctypes.Structure):
    _fields_ = [("k", ctypes.c_uint32), ("exact_count", ctypes.c_size_t), ("members", Rows),
                ("others", Rows * 2), ("overlaps", ctypes.c_void_p), ("overlap_count", ctypes.c_size_t)]


vorlane = ctypes.CDLL(sys.argv[1])
vorlane.vorlane_last_failure.restype = ctypes.c_char_p
network, results, level = ctypes.c_void_p(), ctypes.c_void_p(), Level()
if (vorlane.vorlane_network_read(sys.argv[2].encode(), None, None, ctypes.byref(network))
        or vorlane.vorlane_find(network, None, None, ctypes.byref(results))
        or vorlane.vorlane_results_level(results, int(sys.argv[3]), ctypes.byref(level))):
    sys.exit(vorlane.vorlane_last_failure(None).decode())
for i in range(level.members.size):
    start, end = level.members.starts[i : i + 2]
    print(i, level.members.values[start:end])
