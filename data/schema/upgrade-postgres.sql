-- From version 1 of the tables, which had no number, to version 2. Runs in one transaction. Rows that a key would refuse
-- are mended first: rows of a missing workflow are deleted, ends of arcs and embedded workflows that are missing become NULL, of several
-- values of a token for one property the last one stays, and of definitions with the same name the later ones get their ids after it.

CREATE TABLE vantrel_schema (version integer NOT NULL);
INSERT INTO vantrel_schema (version) VALUES (2);

UPDATE workflow AS later SET guid = gen_random_uuid()
 WHERE EXISTS (SELECT 1 FROM workflow AS earlier WHERE earlier.guid = later.guid AND earlier.id < later.id);
ALTER TABLE workflow ADD UNIQUE (guid);
CREATE FUNCTION workflowdeleted() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
  UPDATE transition SET subflowid = 0 WHERE subflowid = OLD.id;
  RETURN NULL;
END $$;
CREATE TRIGGER workflowdeleted AFTER DELETE ON workflow FOR EACH ROW EXECUTE FUNCTION workflowdeleted();

CREATE TABLE vantrel_workflow (
  workflowid integer PRIMARY KEY REFERENCES workflow (id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED,
  backcolor  integer NOT NULL
);

DELETE FROM place WHERE workflowid NOT IN (SELECT id FROM workflow);
ALTER TABLE place ADD FOREIGN KEY (workflowid) REFERENCES workflow (id) DEFERRABLE INITIALLY DEFERRED;

DELETE FROM transition WHERE workflowid NOT IN (SELECT id FROM workflow);
UPDATE transition SET subflowid = 0 WHERE subflowid <> 0 AND subflowid NOT IN (SELECT id FROM workflow);
ALTER TABLE transition ADD FOREIGN KEY (workflowid) REFERENCES workflow (id) DEFERRABLE INITIALLY DEFERRED;

DROP TRIGGER arcdeleted ON arc;
DROP FUNCTION arcdeleted();
DELETE FROM arc WHERE workflowid NOT IN (SELECT id FROM workflow);
UPDATE arc SET placeid = NULL WHERE placeid NOT IN (SELECT id FROM place);
UPDATE arc SET transitionid = NULL WHERE transitionid NOT IN (SELECT id FROM transition);
ALTER TABLE arc ADD FOREIGN KEY (workflowid) REFERENCES workflow (id) DEFERRABLE INITIALLY DEFERRED,
  ADD FOREIGN KEY (placeid) REFERENCES place (id) ON DELETE SET NULL DEFERRABLE INITIALLY DEFERRED,
  ADD FOREIGN KEY (transitionid) REFERENCES transition (id) ON DELETE SET NULL DEFERRABLE INITIALLY DEFERRED;
CREATE FUNCTION arcwritten() RETURNS trigger LANGUAGE plpgsql AS $$
BEGIN
  NEW.placeid := nullif(NEW.placeid, 0);
  NEW.transitionid := nullif(NEW.transitionid, 0);
  RETURN NEW;
END $$;
CREATE TRIGGER arcwritten BEFORE INSERT OR UPDATE ON arc FOR EACH ROW WHEN (NEW.placeid = 0 OR NEW.transitionid = 0)
  EXECUTE FUNCTION arcwritten();

DELETE FROM vector WHERE arcid NOT IN (SELECT id FROM arc);
ALTER TABLE vector ADD FOREIGN KEY (arcid) REFERENCES arc (id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED;
CREATE FUNCTION vectorofnoarc() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN RETURN NULL; END $$;
CREATE TRIGGER vectorofnoarc BEFORE INSERT ON vector FOR EACH ROW WHEN (NEW.arcid = 0) EXECUTE FUNCTION vectorofnoarc();

DELETE FROM notation WHERE workflowid NOT IN (SELECT id FROM workflow);
ALTER TABLE notation ADD FOREIGN KEY (workflowid) REFERENCES workflow (id) DEFERRABLE INITIALLY DEFERRED;

DROP INDEX tokenpropertyofplace;
UPDATE tokenproperty AS later SET name = later.name || ' (' || later.id || ')'
 WHERE EXISTS (SELECT 1 FROM tokenproperty AS earlier
                WHERE earlier.placeid = later.placeid AND earlier.name = later.name AND earlier.id < later.id);
CREATE UNIQUE INDEX tokenpropertyofplace ON tokenproperty (placeid, md5(name));
ALTER TABLE propertyoption ALTER CONSTRAINT propertyoption_propertyid_fkey DEFERRABLE INITIALLY DEFERRED;
DROP INDEX formertokenpropertyofplace;
CREATE INDEX formertokenpropertyofplace ON formertokenproperty (placeid);

DELETE FROM propertyvalue AS value
 WHERE tokenid NOT IN (SELECT id FROM token)
    OR EXISTS (SELECT 1 FROM propertyvalue AS later
                WHERE later.propertyid = value.propertyid AND later.tokenid = value.tokenid AND later.id > value.id);
ALTER TABLE propertyvalue ADD FOREIGN KEY (tokenid) REFERENCES token (id) ON DELETE CASCADE DEFERRABLE INITIALLY DEFERRED;
DROP INDEX propertyvalueofproperty;
CREATE UNIQUE INDEX propertyvalueofproperty ON propertyvalue (propertyid, tokenid);
