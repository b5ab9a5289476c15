-- The tables as they were before they had a number, for the test of their upgrade.

CREATE TABLE Workflow (
  Id             INTEGER PRIMARY KEY,
  -- A random identifier of version 4 (RFC 9562). No statement writes it.
  GUID           TEXT NOT NULL DEFAULT (lower(
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

CREATE TABLE Place (
  Id                INTEGER PRIMARY KEY AUTOINCREMENT,
  WorkflowId        INTEGER,
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
  WorkflowId        INTEGER,
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

-- What an arc lacks is passed over when it is read.
CREATE TABLE Arc (
  Id             INTEGER PRIMARY KEY AUTOINCREMENT,
  WorkflowId     INTEGER,
  PlaceId        INTEGER,
  TransitionId   INTEGER,
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

-- The segments of an arc's path, in the order of insertion. A trigger and not a foreign key removes them with their arc: an arc
-- that was never stored has the id 0, and its segments must not stop a save.
CREATE TABLE Vector (
  ArcId INTEGER NOT NULL,
  X1    REAL NOT NULL,
  Y1    REAL NOT NULL,
  X2    REAL NOT NULL,
  Y2    REAL NOT NULL
);
CREATE INDEX VectorOfArc ON Vector (ArcId);
CREATE TRIGGER ArcDeleted AFTER DELETE ON Arc BEGIN
  DELETE FROM Vector WHERE ArcId = OLD.Id;
END;

CREATE TABLE Notation (
  Id            INTEGER PRIMARY KEY AUTOINCREMENT,
  WorkflowId    INTEGER,
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

-- What a token in a place carries.
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
CREATE INDEX TokenPropertyOfPlace ON TokenProperty (PlaceId, Name);

CREATE TABLE PropertyOption (
  PropertyId INTEGER NOT NULL REFERENCES TokenProperty (Id) ON DELETE CASCADE,
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

-- A token's value of a property, where it is not the default.
CREATE TABLE PropertyValue (
  Id         INTEGER PRIMARY KEY AUTOINCREMENT,
  PropertyId INTEGER NOT NULL,
  TokenId    INTEGER NOT NULL,
  "Value"    TEXT NOT NULL
);
CREATE INDEX PropertyValueOfToken ON PropertyValue (TokenId);
CREATE INDEX PropertyValueOfProperty ON PropertyValue (PropertyId, TokenId);

-- Saving the properties of a place deletes them all and inserts them with new ids. The values follow the property of the same
-- place and name; those of one that is missing for a while wait here.
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
