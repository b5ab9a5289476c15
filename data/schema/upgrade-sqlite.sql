-- From version 1 of the tables, which had no number, to version 2. Runs in one transaction and without the checks of foreign keys,
-- which sqlite.sql adds: the rows are moved aside, sqlite.sql makes new tables, the rows are moved back. Rows that a key would
-- refuse are mended on the way: rows of a missing workflow are deleted, ends of arcs and embedded workflows that are missing become NULL,
-- of several values of a token for one property the last one stays, and of definitions with the same name the later ones get their ids
-- after it.

CREATE TEMP TABLE was_Workflow AS SELECT * FROM main.Workflow;
CREATE TEMP TABLE was_Place AS SELECT * FROM main.Place;
CREATE TEMP TABLE was_Transition AS SELECT * FROM main.Transition;
CREATE TEMP TABLE was_Arc AS SELECT * FROM main.Arc;
CREATE TEMP TABLE was_Vector AS SELECT * FROM main.Vector;
CREATE TEMP TABLE was_Notation AS SELECT * FROM main.Notation;
CREATE TEMP TABLE was_TokenProperty AS SELECT * FROM main.TokenProperty;
CREATE TEMP TABLE was_PropertyOption AS SELECT * FROM main.PropertyOption;
CREATE TEMP TABLE was_Workcase AS SELECT * FROM main.Workcase;
CREATE TEMP TABLE was_Token AS SELECT * FROM main.Token;
CREATE TEMP TABLE was_PropertyValue AS SELECT * FROM main.PropertyValue;
CREATE TEMP TABLE was_FormerTokenProperty AS SELECT * FROM main.FormerTokenProperty;
CREATE TEMP TABLE was_sequence AS SELECT name, seq FROM main.sqlite_sequence;

DROP VIEW PropertyOptions;
DROP TABLE main.FormerTokenProperty;
DROP TABLE main.PropertyValue;
DROP TABLE main.Token;
DROP TABLE main.Workcase;
DROP TABLE main.PropertyOption;
DROP TABLE main.TokenProperty;
DROP TABLE main.Notation;
DROP TABLE main.Vector;
DROP TABLE main.Arc;
DROP TABLE main.Transition;
DROP TABLE main.Place;
DROP TABLE main.Workflow;

-- (schema)

INSERT INTO main.Workflow (Id, GUID, StartPlaceName, EndPlaceName, CaseTracking, KeepHistory, ShowGuards, ShowWeights,
  RunStyle, LockControls)
  SELECT Id, GUID, StartPlaceName, EndPlaceName, CaseTracking, KeepHistory, ShowGuards, ShowWeights, RunStyle, LockControls
    FROM was_Workflow WHERE Id IN (SELECT min(Id) FROM was_Workflow GROUP BY GUID);
INSERT INTO main.Workflow (Id, StartPlaceName, EndPlaceName, CaseTracking, KeepHistory, ShowGuards, ShowWeights, RunStyle,
  LockControls)
  SELECT Id, StartPlaceName, EndPlaceName, CaseTracking, KeepHistory, ShowGuards, ShowWeights, RunStyle, LockControls FROM
    was_Workflow WHERE Id NOT IN (SELECT Id FROM main.Workflow);
INSERT INTO main.Place (Id, WorkflowId, Name, Caption, Description, SelectionType, CtlTop, CtlLeft, InputPosition,
  OutputPosition, CaptionOffsetTop, CaptionOffsetLeft, CaptionHeight, CaptionWidth, EnabledImageKey, DisabledImageKey)
  SELECT Id, WorkflowId, Name, Caption, Description, SelectionType, CtlTop, CtlLeft, InputPosition, OutputPosition,
    CaptionOffsetTop, CaptionOffsetLeft, CaptionHeight, CaptionWidth, EnabledImageKey, DisabledImageKey FROM was_Place WHERE
    WorkflowId IS NULL OR WorkflowId IN (SELECT Id FROM main.Workflow);
INSERT INTO main.Transition (Id, WorkflowId, Name, Caption, Description, SubflowId, ObjectClassName, ObjectName, OutputType,
  TriggerType, Action, CtlTop, CtlLeft, InputPosition, OutputPosition, CaptionOffsetTop, CaptionOffsetLeft, CaptionHeight,
  CaptionWidth, Duration, DurationStdDev, EnabledImageKey, DisabledImageKey)
  SELECT Id, WorkflowId, Name, Caption, Description, iif(SubflowId IN (SELECT Id FROM main.Workflow), SubflowId, 0),
    ObjectClassName, ObjectName, OutputType, TriggerType, Action, CtlTop, CtlLeft, InputPosition, OutputPosition,
    CaptionOffsetTop, CaptionOffsetLeft, CaptionHeight, CaptionWidth, Duration, DurationStdDev, EnabledImageKey,
    DisabledImageKey FROM was_Transition WHERE WorkflowId IS NULL OR WorkflowId IN (SELECT Id FROM main.Workflow);
INSERT INTO main.Arc (Id, WorkflowId, PlaceId, TransitionId, ArcDirection, Description, StdPath, Guard, Weight, CaptionOffsetX,
  CaptionOffsetY, CaptionHeight, CaptionWidth, WeightOffsetX, WeightOffsetY, WeightHeight, WeightWidth)
  SELECT Id, WorkflowId, iif(PlaceId IN (SELECT Id FROM main.Place), PlaceId, NULL), iif(TransitionId IN (SELECT Id FROM
    main.Transition), TransitionId, NULL), ArcDirection, Description, StdPath, Guard, Weight, CaptionOffsetX, CaptionOffsetY,
    CaptionHeight, CaptionWidth, WeightOffsetX, WeightOffsetY, WeightHeight, WeightWidth FROM was_Arc WHERE WorkflowId IS NULL
    OR WorkflowId IN (SELECT Id FROM main.Workflow);
INSERT INTO main.Vector (ArcId, X1, Y1, X2, Y2)
  SELECT ArcId, X1, Y1, X2, Y2 FROM was_Vector WHERE ArcId IN (SELECT Id FROM main.Arc) ORDER BY rowid;
INSERT INTO main.Notation (Id, WorkflowId, Caption, Tag, "Top", "Left", Height, Width, BackColor, ForeColor, BackStyle, Font,
  Size, Underline, Strikethrough, Bold, Italics, Alignment, Appearance, BorderStyle, Protected)
  SELECT Id, WorkflowId, Caption, Tag, "Top", "Left", Height, Width, BackColor, ForeColor, BackStyle, Font, Size, Underline,
    Strikethrough, Bold, Italics, Alignment, Appearance, BorderStyle, Protected FROM was_Notation WHERE WorkflowId IS NULL OR
    WorkflowId IN (SELECT Id FROM main.Workflow);
INSERT INTO main.TokenProperty (Id, PlaceId, Name, "Index", Caption, Description, Type, "Value", Attributes)
  SELECT Id, PlaceId, iif(Id IN (SELECT min(Id) FROM was_TokenProperty GROUP BY PlaceId, Name), Name, Name || ' (' || Id ||
    ')'), "Index", Caption, Description, Type, "Value", Attributes FROM was_TokenProperty;
INSERT INTO main.PropertyOption (PropertyId, Prompt, "Value")
  SELECT PropertyId, Prompt, "Value" FROM was_PropertyOption ORDER BY rowid;
INSERT INTO main.Workcase (Id, OrderItemId)
  SELECT Id, OrderItemId FROM was_Workcase;
INSERT INTO main.Token (Id, PlaceId, WorkcaseId, CreateTransitionId, ConsumeTransitionId, CreateUserId, ConsumeUserId,
  DateCreated, DateConsumed, Tag)
  SELECT Id, PlaceId, WorkcaseId, CreateTransitionId, ConsumeTransitionId, CreateUserId, ConsumeUserId, DateCreated,
    DateConsumed, Tag FROM was_Token;
INSERT INTO main.PropertyValue (Id, PropertyId, TokenId, "Value")
  SELECT Id, PropertyId, TokenId, "Value" FROM was_PropertyValue WHERE TokenId IN (SELECT Id FROM main.Token) AND Id IN (SELECT
    max(Id) FROM was_PropertyValue GROUP BY PropertyId, TokenId);
INSERT INTO main.FormerTokenProperty (Id, PlaceId, Name)
  SELECT Id, PlaceId, Name FROM was_FormerTokenProperty;
-- Ids that were given before do not come again.
DELETE FROM main.sqlite_sequence;
INSERT INTO main.sqlite_sequence (name, seq) SELECT name, seq FROM was_sequence;

DROP TABLE temp.was_Workflow;
DROP TABLE temp.was_Place;
DROP TABLE temp.was_Transition;
DROP TABLE temp.was_Arc;
DROP TABLE temp.was_Vector;
DROP TABLE temp.was_Notation;
DROP TABLE temp.was_TokenProperty;
DROP TABLE temp.was_PropertyOption;
DROP TABLE temp.was_Workcase;
DROP TABLE temp.was_Token;
DROP TABLE temp.was_PropertyValue;
DROP TABLE temp.was_FormerTokenProperty;
DROP TABLE temp.was_sequence;
