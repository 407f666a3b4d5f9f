// What the linker put in the place of libxml2's calls notes.
#pragma once

extern int document_reads; // calls of xmlReadFile(); a load makes two, the second after validation
