"""The functions of ``vorlane_c.h``, one entry each; a test holds this file against the header."""

from __future__ import annotations

import ctypes
from ctypes import POINTER, c_char_p, c_double, c_int, c_int32, c_int64, c_size_t, c_uint32, c_uint64, c_void_p
from typing import Any

ABI_VERSION = 1

Handle = c_void_p


class Rows(ctypes.Structure):
    _fields_ = [("size", c_size_t), ("starts", c_void_p), ("values", c_void_p)]


class Failure(ctypes.Structure):
    _fields_ = [
        ("code", c_int),
        ("text", c_char_p),
        ("source", c_char_p),
        ("line", c_size_t),
        ("column", c_size_t),
    ]


class Progress(ctypes.Structure):
    _fields_ = [
        ("cliques_found", c_uint64),
        ("nodes_left", c_uint64),
        ("k_cliques_found", c_uint64),
        ("work_done", c_uint64),
        ("work_total", c_uint64),
    ]


class LinkOptions(ctypes.Structure):
    _fields_ = [
        ("directed", c_int),
        ("weighted", c_int),
        ("min_weight", c_double),
        ("max_weight", c_double),
        ("format", c_char_p),
        ("columns", c_char_p),
    ]


class Links(ctypes.Structure):
    _fields_ = [
        ("node_count", c_uint32),
        ("link_count", c_size_t),
        ("from", c_void_p),
        ("to", c_void_p),
        ("weights", c_void_p),
        ("numbers", c_void_p),
        ("names", c_char_p),
        ("name_starts", c_void_p),
    ]


class NetworkView(ctypes.Structure):
    _fields_ = [
        ("size", c_uint32),
        ("link_count", c_size_t),
        ("directed", c_int),
        ("weighted", c_int),
        ("links", Rows),
        ("weights", c_void_p),
        ("given", c_void_p),
        ("name_bytes", c_size_t),
        ("warning_count", c_size_t),
    ]


class Options(ctypes.Structure):
    _fields_ = [
        ("intensity", c_double),
        ("time_limit", c_double),
        ("k", c_uint32),
        ("cliques", POINTER(Rows)),
        ("exact_clique_count", c_size_t),
        ("directory", c_char_p),
        ("source", c_char_p),
        ("jobs", c_int32),
    ]


class ResultsView(ctypes.Structure):
    _fields_ = [("method", c_int), ("finished", c_int), ("ks", c_void_p), ("k_count", c_size_t)]


class Level(ctypes.Structure):
    _fields_ = [
        ("k", c_uint32),
        ("exact_count", c_size_t),
        ("members", Rows),
        ("cliques", Rows),
        ("k_cliques", Rows),
        ("overlaps", c_void_p),
        ("overlap_count", c_size_t),
    ]


class Summary(ctypes.Structure):
    _fields_ = [
        ("k", c_uint32),
        ("communities", c_size_t),
        ("approximate", c_size_t),
        ("largest", c_size_t),
        ("second_largest", c_size_t),
        ("covered", c_size_t),
        ("overlapping", c_size_t),
        ("overlaps", c_size_t),
    ]


class TreeNode(ctypes.Structure):
    _fields_ = [("k", c_uint32), ("community", c_uint32), ("parent", c_int64)]


class Change(ctypes.Structure):
    _fields_ = [("fate", c_int), ("before", c_int64), ("after", c_int64), ("jaccard", c_double)]


class ComparisonView(ctypes.Structure):
    _fields_ = [
        ("omega", c_double),
        ("nmi", c_double),
        ("changes", c_void_p),
        ("change_count", c_size_t),
    ]


_handle_out = POINTER(Handle)
_number_out = POINTER(c_size_t)
_array_out = POINTER(c_void_p)

#: Name -> (what it returns, what it takes); a code is an int.
FUNCTIONS: dict[str, tuple[Any, list[Any]]] = {
    "vorlane_abi_version": (c_uint32, []),
    "vorlane_version": (c_char_p, []),
    "vorlane_last_failure": (c_char_p, [POINTER(Failure)]),
    "vorlane_control_new": (c_int, [_handle_out]),
    "vorlane_control_free": (None, [Handle]),
    "vorlane_control_stop": (None, [Handle]),
    "vorlane_control_reset": (None, [Handle]),
    "vorlane_control_progress": (None, [Handle, POINTER(Progress)]),
    "vorlane_control_report": (c_size_t, [Handle, c_char_p, c_size_t]),
    "vorlane_network_read": (c_int, [c_char_p, POINTER(LinkOptions), Handle, _handle_out]),
    "vorlane_network_from_links": (c_int, [POINTER(Links), POINTER(LinkOptions), _handle_out]),
    "vorlane_network_free": (None, [Handle]),
    "vorlane_network_look": (None, [Handle, POINTER(NetworkView)]),
    "vorlane_network_warning": (c_char_p, [Handle, c_size_t]),
    "vorlane_network_names": (None, [Handle, c_void_p, c_void_p]),
    "vorlane_network_find": (c_int, [Handle, c_char_p, c_size_t, POINTER(c_uint32)]),
    "vorlane_network_given_links": (
        c_int,
        [Handle, _array_out, _array_out, _array_out, _number_out],
    ),
    "vorlane_find": (c_int, [Handle, POINTER(Options), Handle, _handle_out]),
    "vorlane_results_open": (c_int, [c_char_p, _handle_out]),
    "vorlane_results_free": (None, [Handle]),
    "vorlane_results_look": (None, [Handle, POINTER(ResultsView)]),
    "vorlane_results_network": (c_int, [Handle, _handle_out]),
    "vorlane_results_cliques": (c_int, [Handle, POINTER(Rows), _number_out]),
    "vorlane_results_level": (c_int, [Handle, c_uint32, POINTER(Level)]),
    "vorlane_results_distribution": (c_int, [Handle, c_uint32, c_int, _array_out, _number_out]),
    "vorlane_results_summary": (c_int, [Handle, _array_out, _number_out]),
    "vorlane_results_which_k": (c_int, [Handle, POINTER(c_uint32), POINTER(c_char_p)]),
    "vorlane_results_tree": (c_int, [Handle, _array_out, _number_out]),
    "vorlane_results_write": (c_int, [Handle, c_char_p, c_char_p, Handle]),
    "vorlane_results_export": (c_int, [Handle, c_char_p, c_uint32, c_char_p, c_int]),
    "vorlane_results_report": (c_int, [Handle, c_char_p, c_char_p, c_uint32, c_int, Handle]),
    "vorlane_results_figure": (c_int, [Handle, c_int, c_uint32, Handle, POINTER(c_char_p)]),
    "vorlane_parts_plan": (
        c_int,
        [
            c_char_p,
            POINTER(LinkOptions),
            POINTER(Options),
            c_char_p,
            c_char_p,
            c_uint64,
            Handle,
        ],
    ),
    "vorlane_parts_search": (c_int, [c_char_p, c_uint64, Handle, POINTER(c_uint64)]),
    "vorlane_parts_gather": (c_int, [c_char_p, Handle, POINTER(c_uint64)]),
    "vorlane_parts_levels": (c_int, [c_char_p, c_uint64, Handle, POINTER(c_uint64)]),
    "vorlane_parts_finish": (c_int, [c_char_p, Handle]),
    "vorlane_compare": (c_int, [c_uint32, POINTER(Rows), POINTER(Rows), _handle_out]),
    "vorlane_comparison_look": (None, [Handle, POINTER(ComparisonView)]),
    "vorlane_comparison_free": (None, [Handle]),
    "vorlane_results_arrow": (c_int, [Handle, c_uint32, c_void_p]),
}
