// Nothing but the headers: see test_headers.h.
