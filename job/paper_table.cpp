// SPDX-License-Identifier: Apache-2.0
#include "job/paper_table.h"

// Sheet width and height, image width, height, left and top; two-up mode, split and option; pages
// joined, gap between them, whether a single half prints as a sheet of its own.
// clang-format off
const tagPAPERINFO PAPER_9x13      = {1550, 1082, 1550, 1082,    0,    0,  0, 0, 0,  0, 0, 0};
const tagPAPERINFO PAPER_10x15     = {1852, 1232, 1852, 1232,    0,    0,  0, 0, 0,  0, 0, 0};
const tagPAPERINFO PAPER_13x18     = {1550, 2134, 1550, 2134,    0,    0,  0, 0, 0,  0, 0, 0};
const tagPAPERINFO PAPER_15x20     = {1852, 2434, 1852, 2434,    0,    0,  0, 0, 0,  0, 0, 0};
const tagPAPERINFO PAPER_5x15x2_1  = {1852, 1232, 1852, 1232,    0,    0,  1, 616, 1,  0, 0, 0};
const tagPAPERINFO PAPER_5x15x2_2  = {1852, 1232, 1852,  616,    0,    0,  1, 616, 1,  1, 0, 0};
const tagPAPERINFO PAPER_5x15      = {1852,  631, 1852,  631,    0,    0,  0, 0, 0,  0, 0, 0};
const tagPAPERINFO PAPER_15x15     = {1852, 1833, 1852, 1833,    0,    0,  0, 0, 0,  0, 0, 0};
const tagPAPERINFO PAPER_13x13     = {1550, 1533, 1550, 1533,    0,    0,  0, 0, 0,  0, 0, 0};
const tagPAPERINFO PAPER_9x13_WB   = {1550, 1082, 1382,  934,   84,   74,  0, 0, 0,  0, 0, 0};
const tagPAPERINFO PAPER_10x15_WB  = {1852, 1232, 1684, 1084,   84,   74,  0, 0, 0,  0, 0, 0};
const tagPAPERINFO PAPER_13x18_WB  = {1550, 2134, 1382, 1986,   84,   74,  0, 0, 0,  0, 0, 0};
const tagPAPERINFO PAPER_15x20_WB  = {1852, 2434, 1684, 2286,   84,   74,  0, 0, 0,  0, 0, 0};
// clang-format on
