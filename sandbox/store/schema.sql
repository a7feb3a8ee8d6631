-- The books of the sandbox. Money is in cents, times in milliseconds since 1970, days as 20260105.
-- `event` is the only thing that is ever written on purpose: every other table follows from it and can be
-- computed again by reading the events in order of seq.

-- What happened, in order. Rows are never changed and never removed.
CREATE TABLE IF NOT EXISTS event (
    seq     INTEGER PRIMARY KEY,
    time    INTEGER NOT NULL,
    kind    TEXT    NOT NULL,
    payload TEXT    NOT NULL  -- JSON object with every figure the tables below need
);
