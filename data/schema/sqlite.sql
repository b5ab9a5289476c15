-- The tables of Vantrel for SQLite. postgres.sql has the same ones for PostgreSQL.
--
-- The kinds of columns are read from these words: SMALLINT a 16-bit and INTEGER a 32-bit integer, REAL a single, DOUBLE a double,
-- BOOLEAN 0 or 1, DATETIME universal time as text 'YYYY-MM-DD HH:MM:SS', TEXT text in UTF-8.
--
-- AUTOINCREMENT where the database gives the ids: an id must never come again, because rows of TokenProperty, Token and
-- PropertyValue outlive what they belong to. Workflow, Workcase and Token get their ids from the program, the largest plus one.
--
-- NOT NULL is given only where a row without the value could not be read. Foreign keys are checked when the transaction ends: a save
-- deletes places and transitions before it rewrites the arcs that lead to them. Definitions, cases and tokens stay when their chart
-- is deleted, so no key leads from them to it.
--
-- A change of this file is a new version: the number below, and a step from the version before in upgrade-sqlite.sql.

-- The version of these tables, one row.
CREATE TABLE vantrel_schema (Version INTEGER NOT NULL);
INSERT INTO vantrel_schema (Version) VALUES (2);

CREATE TABLE Workflow (
  Id             INTEGER PRIMARY KEY,
  -- A random identifier of version 4 (RFC 9562). No statement writes it.
  GUID           TEXT NOT NULL UNIQUE DEFAULT (lower(
                   hex(randomblob(4)) || '-' || hex(randomblob(2)) || '-4' || substr(hex(randomblob(2)), 2) || '-' ||
                   substr('89ab', 1 + (random() & 3), 1) || substr(hex(randomblob(2)), 2) || '-' || hex(randomblob(6)))),
  StartPlaceName TEXT,
  EndPlaceName   TEXT,
  CaseTracking   BOOLEAN NOT NULL,
  KeepHistory    BOOLEAN NOT NULL,
  ShowGuards     BOOLEAN NOT NULL,
  ShowWeights    BOOLEAN NOT NULL,
  RunStyle       INTEGER NOT NULL,
  LockControls   BOOLEAN NOT NULL
);
-- The next new workflow may get the id of a deleted one, and must not take its place inside others.
CREATE TRIGGER WorkflowDeleted AFTER DELETE ON Workflow BEGIN
  UPDATE Transition SET SubflowId = 0 WHERE SubflowId = OLD.Id;
END;

-- Values of a workflow that only this program uses; hosts need not have the table.
CREATE TABLE vantrel_workflow (
  WorkflowId INTEGER PRIMARY KEY REFERENCES Workflow (Id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED,
  BackColor  INTEGER NOT NULL  -- of the chart, BGR
);

CREATE TABLE Place (
  Id                INTEGER PRIMARY KEY AUTOINCREMENT,
  WorkflowId        INTEGER REFERENCES Workflow (Id) DEFERRABLE INITIALLY DEFERRED,
  Name              TEXT NOT NULL,
  Caption           TEXT NOT NULL,
  Description       TEXT NOT NULL,
  SelectionType     INTEGER,
  CtlTop            REAL NOT NULL,
  CtlLeft           REAL NOT NULL,
  InputPosition     SMALLINT NOT NULL,
  OutputPosition    SMALLINT NOT NULL,
  CaptionOffsetTop  REAL NOT NULL,
  CaptionOffsetLeft REAL NOT NULL,
  CaptionHeight     REAL,  -- written together with the width, and only for a caption that is shown
  CaptionWidth      REAL,
  EnabledImageKey   TEXT NOT NULL,
  DisabledImageKey  TEXT NOT NULL
);
CREATE INDEX PlaceOfWorkflow ON Place (WorkflowId);

CREATE TABLE Transition (
  Id                INTEGER PRIMARY KEY AUTOINCREMENT,
  WorkflowId        INTEGER REFERENCES Workflow (Id) DEFERRABLE INITIALLY DEFERRED,
  Name              TEXT NOT NULL,
  Caption           TEXT,
  Description       TEXT,
  SubflowId         INTEGER NOT NULL,
  ObjectClassName   TEXT,
  ObjectName        TEXT,
  OutputType        INTEGER NOT NULL,
  TriggerType       INTEGER NOT NULL,
  Action            TEXT,
  CtlTop            REAL NOT NULL,
  CtlLeft           REAL NOT NULL,
  InputPosition     SMALLINT NOT NULL,
  OutputPosition    SMALLINT NOT NULL,
  CaptionOffsetTop  REAL NOT NULL,
  CaptionOffsetLeft REAL NOT NULL,
  CaptionHeight     REAL,
  CaptionWidth      REAL,
  Duration          DOUBLE NOT NULL,
  DurationStdDev    DOUBLE NOT NULL,
  EnabledImageKey   TEXT NOT NULL,
  DisabledImageKey  TEXT NOT NULL
);
CREATE INDEX TransitionOfWorkflow ON Transition (WorkflowId);
CREATE INDEX TransitionOfSubflow ON Transition (SubflowId);

-- Reading an arc skips what it lacks.
CREATE TABLE Arc (
  Id             INTEGER PRIMARY KEY AUTOINCREMENT,
  WorkflowId     INTEGER REFERENCES Workflow (Id) DEFERRABLE INITIALLY DEFERRED,
  PlaceId        INTEGER REFERENCES Place (Id) ON DELETE SET NULL DEFERRABLE INITIALLY DEFERRED,
  TransitionId   INTEGER REFERENCES Transition (Id) ON DELETE SET NULL DEFERRABLE INITIALLY DEFERRED,
  ArcDirection   INTEGER,
  Description    TEXT,
  StdPath        BOOLEAN,
  Guard          TEXT,
  Weight         TEXT,
  CaptionOffsetX REAL,
  CaptionOffsetY REAL,
  CaptionHeight  REAL,
  CaptionWidth   REAL,
  WeightOffsetX  REAL,
  WeightOffsetY  REAL,
  WeightHeight   REAL,
  WeightWidth    REAL
);
CREATE INDEX ArcOfWorkflow ON Arc (WorkflowId);
CREATE INDEX ArcOfPlace ON Arc (PlaceId);
CREATE INDEX ArcOfTransition ON Arc (TransitionId);
-- An end that was never stored has the id 0 when the arc is written.
CREATE TRIGGER ArcInserted AFTER INSERT ON Arc WHEN NEW.PlaceId = 0 OR NEW.TransitionId = 0 BEGIN
  UPDATE Arc SET PlaceId = nullif(PlaceId, 0), TransitionId = nullif(TransitionId, 0) WHERE Id = NEW.Id;
END;
CREATE TRIGGER ArcUpdated AFTER UPDATE OF PlaceId, TransitionId ON Arc WHEN NEW.PlaceId = 0 OR NEW.TransitionId = 0 BEGIN
  UPDATE Arc SET PlaceId = nullif(PlaceId, 0), TransitionId = nullif(TransitionId, 0) WHERE Id = NEW.Id;
END;

-- The segments of an arc's path, in the order of insertion.
CREATE TABLE Vector (
  ArcId INTEGER NOT NULL REFERENCES Arc (Id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED,
  X1    REAL NOT NULL,
  Y1    REAL NOT NULL,
  X2    REAL NOT NULL,
  Y2    REAL NOT NULL
);
CREATE INDEX VectorOfArc ON Vector (ArcId);
-- An arc that was never stored has the id 0: its segments are left out and do not stop a save.
CREATE TRIGGER VectorOfNoArc BEFORE INSERT ON Vector WHEN NEW.ArcId = 0 BEGIN
  SELECT RAISE(IGNORE);
END;

CREATE TABLE Notation (
  Id            INTEGER PRIMARY KEY AUTOINCREMENT,
  WorkflowId    INTEGER REFERENCES Workflow (Id) DEFERRABLE INITIALLY DEFERRED,
  Caption       TEXT,
  Tag           TEXT NOT NULL,
  "Top"         INTEGER NOT NULL,
  "Left"        INTEGER NOT NULL,
  Height        INTEGER NOT NULL,
  Width         INTEGER NOT NULL,
  BackColor     INTEGER NOT NULL,
  ForeColor     INTEGER NOT NULL,
  BackStyle     SMALLINT NOT NULL DEFAULT 0,  -- read, but no statement writes it
  Font          TEXT NOT NULL,
  Size          INTEGER NOT NULL,
  Underline     BOOLEAN NOT NULL,
  Strikethrough BOOLEAN NOT NULL,
  Bold          BOOLEAN NOT NULL,
  Italics       BOOLEAN NOT NULL,
  Alignment     SMALLINT NOT NULL,
  Appearance    SMALLINT NOT NULL,
  BorderStyle   SMALLINT NOT NULL,
  Protected     BOOLEAN
);
CREATE INDEX NotationOfWorkflow ON Notation (WorkflowId);

-- The properties of the tokens in a place.
CREATE TABLE TokenProperty (
  Id          INTEGER PRIMARY KEY AUTOINCREMENT,
  PlaceId     INTEGER NOT NULL,
  Name        TEXT NOT NULL,
  "Index"     SMALLINT NOT NULL,
  Caption     TEXT NOT NULL,
  Description TEXT,
  Type        INTEGER NOT NULL,
  "Value"     TEXT NOT NULL,
  Attributes  INTEGER NOT NULL
);
CREATE UNIQUE INDEX TokenPropertyOfPlace ON TokenProperty (PlaceId, Name);

CREATE TABLE PropertyOption (
  PropertyId INTEGER NOT NULL REFERENCES TokenProperty (Id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED,
  Prompt     TEXT NOT NULL,
  "Value"    TEXT NOT NULL
);
CREATE INDEX PropertyOptionOfProperty ON PropertyOption (PropertyId);

-- Options are read by the one name and written by the other.
CREATE VIEW PropertyOptions AS SELECT PropertyId, Prompt, "Value" FROM PropertyOption;
CREATE TRIGGER PropertyOptionsInserted INSTEAD OF INSERT ON PropertyOptions BEGIN
  INSERT INTO PropertyOption (PropertyId, Prompt, "Value") VALUES (NEW.PropertyId, NEW.Prompt, NEW."Value");
END;
CREATE TRIGGER PropertyOptionsDeleted INSTEAD OF DELETE ON PropertyOptions BEGIN
  DELETE FROM PropertyOption WHERE PropertyId = OLD.PropertyId AND Prompt = OLD.Prompt AND "Value" = OLD."Value";
END;

CREATE TABLE Workcase (
  Id          INTEGER PRIMARY KEY,
  OrderItemId INTEGER NOT NULL
);

CREATE TABLE Token (
  Id                  INTEGER PRIMARY KEY,
  PlaceId             INTEGER NOT NULL,
  WorkcaseId          INTEGER NOT NULL,
  CreateTransitionId  INTEGER NOT NULL,  -- 0 for none, as below
  ConsumeTransitionId INTEGER NOT NULL,
  CreateUserId        INTEGER NOT NULL,
  ConsumeUserId       INTEGER NOT NULL,
  DateCreated         DATETIME NOT NULL,
  DateConsumed        DATETIME NOT NULL,
  Tag                 TEXT NOT NULL
);
CREATE INDEX TokenOfPlace ON Token (PlaceId);
CREATE INDEX TokenOfWorkcase ON Token (WorkcaseId);

-- A token's value of a property, if it is not the default.
CREATE TABLE PropertyValue (
  Id         INTEGER PRIMARY KEY AUTOINCREMENT,
  PropertyId INTEGER NOT NULL,
  TokenId    INTEGER NOT NULL REFERENCES Token (Id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED,
  "Value"    TEXT NOT NULL
);
CREATE INDEX PropertyValueOfToken ON PropertyValue (TokenId);
CREATE UNIQUE INDEX PropertyValueOfProperty ON PropertyValue (PropertyId, TokenId);

-- Saving the properties of a place deletes them all and inserts them with new ids. The values follow the property of the same
-- place and name; those of a property that is missing for a while stay here.
CREATE TABLE FormerTokenProperty (
  Id      INTEGER PRIMARY KEY,
  PlaceId INTEGER NOT NULL,
  Name    TEXT NOT NULL
);
CREATE INDEX FormerTokenPropertyOfPlace ON FormerTokenProperty (PlaceId, Name);
CREATE TRIGGER TokenPropertyDeleted AFTER DELETE ON TokenProperty
WHEN EXISTS (SELECT 1 FROM PropertyValue WHERE PropertyId = OLD.Id) BEGIN
  INSERT INTO FormerTokenProperty (Id, PlaceId, Name) VALUES (OLD.Id, OLD.PlaceId, OLD.Name);
END;
CREATE TRIGGER TokenPropertyInserted AFTER INSERT ON TokenProperty
WHEN EXISTS (SELECT 1 FROM FormerTokenProperty WHERE PlaceId = NEW.PlaceId AND Name = NEW.Name) BEGIN
  UPDATE PropertyValue SET PropertyId = NEW.Id
   WHERE PropertyId IN (SELECT Id FROM FormerTokenProperty WHERE PlaceId = NEW.PlaceId AND Name = NEW.Name);
  DELETE FROM FormerTokenProperty WHERE PlaceId = NEW.PlaceId AND Name = NEW.Name;
END;
