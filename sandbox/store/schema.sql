-- The books of the sandbox. Money is in cents, times in milliseconds since 1970, days as 20260105.
-- `event` is the only table that is written on purpose: account, position, entrust, deal, depth_used and
-- price_move follow from it and can be computed again by reading the events in order of seq.

-- What happened, in order. Rows are never changed and never removed.
CREATE TABLE IF NOT EXISTS event (
    seq     INTEGER PRIMARY KEY,
    time    INTEGER NOT NULL,
    kind    TEXT    NOT NULL, -- see ledger/Events.h
    payload TEXT    NOT NULL  -- JSON object with every figure that the tables below need
);

CREATE TABLE IF NOT EXISTS account (
    user_id    INTEGER PRIMARY KEY,
    available  INTEGER NOT NULL CHECK (available >= 0),
    frozen     INTEGER NOT NULL CHECK (frozen >= 0),
    unsettled  INTEGER NOT NULL, -- proceeds of today's sales: they buy, but cannot be withdrawn yet
    created_at INTEGER NOT NULL
);

-- One row from the first buy of a stock until it is sold out; the next buy begins a new row.
CREATE TABLE IF NOT EXISTS position (
    id           INTEGER PRIMARY KEY,
    user_id      INTEGER NOT NULL REFERENCES account,
    stock        TEXT    NOT NULL,
    shares       INTEGER NOT NULL CHECK (shares >= 0),
    bought_today INTEGER NOT NULL CHECK (bought_today >= 0),
    frozen       INTEGER NOT NULL CHECK (frozen >= 0), -- in open sell orders
    cost         INTEGER NOT NULL,                     -- of the shares still held, fees included
    buy_cost     INTEGER NOT NULL,                     -- of all buys, fees included
    buy_shares   INTEGER NOT NULL,
    sell_income  INTEGER NOT NULL,                     -- of all sales, fees taken off
    sell_shares  INTEGER NOT NULL,
    version      INTEGER NOT NULL,
    created_at   INTEGER NOT NULL,
    updated_at   INTEGER NOT NULL,
    CHECK (bought_today + frozen <= shares)
);
CREATE UNIQUE INDEX IF NOT EXISTS position_held ON position (user_id, stock) WHERE shares > 0;

CREATE TABLE IF NOT EXISTS entrust (
    id           INTEGER PRIMARY KEY,
    user_id      INTEGER NOT NULL REFERENCES account,
    stock        TEXT    NOT NULL,
    side         INTEGER NOT NULL, -- 1 buy, 2 sell
    price        INTEGER NOT NULL,
    lower_limit  INTEGER NOT NULL, -- the day's limits when it was taken
    upper_limit  INTEGER NOT NULL,
    shares       INTEGER NOT NULL,
    filled       INTEGER NOT NULL,
    filled_money INTEGER NOT NULL,
    frozen_cash  INTEGER NOT NULL CHECK (frozen_cash >= 0),
    commission   INTEGER NOT NULL,
    stamp_tax    INTEGER NOT NULL,
    transfer_fee INTEGER NOT NULL,
    status       INTEGER NOT NULL, -- 0 to 9, see ledger/Order.h
    open         INTEGER NOT NULL, -- 1 while it can trade
    queue_ahead  INTEGER NOT NULL, -- shares that stood at its price before it
    day          INTEGER NOT NULL,
    created_at   INTEGER NOT NULL,
    updated_at   INTEGER NOT NULL,
    cancel_at    INTEGER NOT NULL, -- when its cancel was asked for; 0: never
    note         TEXT    NOT NULL,
    CHECK (filled <= shares)
);
CREATE INDEX IF NOT EXISTS entrust_open ON entrust (open, id) WHERE open = 1;
CREATE INDEX IF NOT EXISTS entrust_of_day ON entrust (user_id, day, id);

CREATE TABLE IF NOT EXISTS deal (
    id           INTEGER PRIMARY KEY,
    entrust_id   INTEGER NOT NULL REFERENCES entrust,
    user_id      INTEGER NOT NULL REFERENCES account,
    stock        TEXT    NOT NULL,
    side         INTEGER NOT NULL,
    price        INTEGER NOT NULL,
    shares       INTEGER NOT NULL CHECK (shares > 0),
    commission   INTEGER NOT NULL,
    stamp_tax    INTEGER NOT NULL,
    transfer_fee INTEGER NOT NULL,
    day          INTEGER NOT NULL,
    time         INTEGER NOT NULL
);
CREATE INDEX IF NOT EXISTS deal_of_day ON deal (user_id, day, id);
CREATE INDEX IF NOT EXISTS deal_of_entrust ON deal (entrust_id);

-- What our users took from a displayed level. A level drawn anew has another epoch.
CREATE TABLE IF NOT EXISTS depth_used (
    stock  TEXT    NOT NULL,
    side   INTEGER NOT NULL, -- 1 the bids, 2 the asks
    price  INTEGER NOT NULL,
    epoch  INTEGER NOT NULL,
    shares INTEGER NOT NULL,
    PRIMARY KEY (stock, side, price, epoch)
) WITHOUT ROWID;

-- Hands laid on a price from the console.
CREATE TABLE IF NOT EXISTS price_move (
    id     INTEGER PRIMARY KEY,
    stock  TEXT    NOT NULL,
    day    INTEGER NOT NULL, -- counted as in market/Calendar.h, like moment
    moment INTEGER NOT NULL,
    kind   INTEGER NOT NULL,
    shift  INTEGER NOT NULL
);

-- What the program itself must know when it starts again: seed, market hours, clock, and how far the
-- market has been worked through.
CREATE TABLE IF NOT EXISTS setting (
    key   TEXT PRIMARY KEY,
    value INTEGER NOT NULL
) WITHOUT ROWID;
