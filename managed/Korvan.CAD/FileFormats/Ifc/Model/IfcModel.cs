using System;
using System.Collections.Generic;
using System.Linq;
using System.Text;
using System.Threading;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>The instances of a file, each of which is created from its record on first access, with the changes since
/// it was read.</summary>
internal sealed class IfcModel
{
    private readonly IfcIdMap _ids;
    private readonly StepLines _lines;
    private readonly SortedSet<int> _removed = [];
    private readonly List<IfcEntityBase> _added = [];
    private readonly Dictionary<long, IfcEntityBase> _addedById = [];
    private readonly HashSet<IfcEntityBase> _changed = [];
    private IfcEntityBase?[]? _instances;
    private IfcClassIndex? _classes;
    private IfcGlobalIds? _globalIds;
    private IfcReferences? _references;
    private int[]? _kept;
    private long _maxId;

    internal IfcModel(StepFile file, IfcSchema schema, IfcIdMap ids)
    {
        File = file;
        Schema = schema;
        _ids = ids;
        _lines = new StepLines(file.Data);
        _maxId = ids.MaxId;
    }

    internal StepFile File { get; }

    internal IfcSchema Schema { get; }

    internal IfcReferences References => _references ??= new IfcReferences(this);

    /// <summary>Gets the records that are no longer part of the model, in file order.</summary>
    internal SortedSet<int> Removed => _removed;

    /// <summary>Gets the instances that are not in the file.</summary>
    internal IReadOnlyList<IfcEntityBase> Added => _added;

    /// <summary>Gets the instances of the file with changed attributes.</summary>
    internal IReadOnlyCollection<IfcEntityBase> Changed => _changed;

    internal IfcEntityList Entities => new(this, Kept(), File.Index.Count - _removed.Count, [.. _added]);

    /// <summary>Returns the record of an instance, also of a removed one, or -1.</summary>
    internal int RecordOf(long id) => _ids.Find(id);

    internal IfcEntityBase? Find(long id)
    {
        int record = _ids.Find(id);
        return record >= 0 && !_removed.Contains(record) ? Instance(record) : _addedById.GetValueOrDefault(id);
    }

    internal IfcEntityBase Instance(int record)
    {
        IfcEntityBase?[] all = _instances ??= new IfcEntityBase?[File.Index.Count];
        return all[record] ?? Make(all, record);
    }

    /// <summary>Returns the instance of a record if it has been created.</summary>
    internal IfcEntityBase? Known(int record) => _instances?[record];

    internal IfcEntityList OfClass(IfcClass one, bool isExact)
    {
        _classes ??= new IfcClassIndex(File.Index.Keywords, Schema.Classes.Count);
        int[] records = _classes.Records(one, isExact);
        if (_removed.Count > 0)
        {
            records = Array.FindAll(records, record => !_removed.Contains(record));
        }

        IfcEntityBase[] added = [.. _added.Where(item => isExact ? item.Class == one : item.Class.IsA(one))];
        return new IfcEntityList(this, records, records.Length, added);
    }

    internal IfcEntityBase? FindGlobalId(string globalId) => (_globalIds ??= new IfcGlobalIds(this)).Find(globalId);

    /// <summary>Reads the attributes of an instance.</summary>
    /// <exception cref="IfcImageException">The record has invalid values.</exception>
    internal object?[] ReadValues(IfcEntityBase entity)
    {
        int record = entity.Record;
        if (entity.Class.Number < 0)
        {
            return [];
        }

        try
        {
            StepParser parser = new(File.Data.AsSpan(0, File.Index.Ends[record]), BodyStart(record));
            parser.Keyword();
            return parser.List();
        }
        catch (StepException e)
        {
            throw new IfcImageException($"{entity.DescribePlace()}{e.Message}.");
        }
    }

    internal ReadOnlySpan<byte> Bytes(int record) =>
        File.Data.AsSpan(File.Index.Starts[record]..File.Index.Ends[record]);

    /// <summary>Returns the offset of a record's first attribute from its # sign.</summary>
    internal int FirstAttribute(int record)
    {
        StepParser parser = new(File.Data, BodyStart(record));
        parser.Keyword();
        parser.Expect('(');
        return parser.At - File.Index.Starts[record];
    }

    internal string TextOf(int record) => Encoding.Latin1.GetString(Bytes(record));

    internal int LineOf(int record) => _lines.LineOf(File.Index.Starts[record]);

    internal void NoteChange(IfcEntityBase entity)
    {
        if (entity.Record >= 0)
        {
            _changed.Add(entity);
        }
    }

    /// <summary>Adds what a value refers to, and records the references.</summary>
    internal void NoteReferences(IfcEntityBase owner, object? value)
    {
        List<IfcEntityBase> targets = [.. IfcReferences.Entities(value, this)];
        Add(targets.FindAll(target => target.Model is null));
        targets.ForEach(target => References.NoteAdded(target, owner));
    }

    /// <summary>Adds an instance, and the instances it refers to that belong to no model.</summary>
    /// <exception cref="IfcImageException">One of them is of another schema version, or refers to another
    /// model.</exception>
    internal void Add(IfcEntityBase entity) => Add([entity]);

    private void Add(List<IfcEntityBase> entities)
    {
        entities.ForEach(VerifyEdition);
        // All are verified before the first one is added.
        HashSet<IfcEntityBase> seen = [];
        List<IfcEntityBase> free = entities.FindAll(seen.Add);
        for (int i = 0; i < free.Count; i++)
        {
            foreach (IfcEntityBase target in Targets(free[i]))
            {
                VerifyTarget(free[i], target);
                if (target.Model is null && seen.Add(target))
                {
                    free.Add(target);
                }
            }
        }

        free.ForEach(Take);
        foreach (IfcEntityBase one in free)
        {
            foreach (IfcEntityBase target in Targets(one))
            {
                References.NoteAdded(target, one);
            }
        }
    }

    /// <summary>Removes an instance to which no other refers.</summary>
    internal void Remove(IfcEntityBase entity)
    {
        List<IIfcEntity> referrers = [.. entity.Referrers.Where(one => one != entity)];
        if (referrers.Count > 0)
        {
            const int shown = 5;
            string names = string.Join(
                ", ", referrers.Take(shown).Select(one => $"#{one.InstanceId}={one.EntityName}"));
            string more = referrers.Count > shown ? $" and {referrers.Count - shown} more" : string.Empty;
            throw new IfcImageException(
                $"{entity.DescribePlace()}it is not removed, because {names}{more} refer to it; change these first.");
        }

        int record = entity.Record;
        long id = entity.InstanceId;
        Detach(entity); // first, for it reads values by their numbers
        if (record >= 0)
        {
            _removed.Add(record);
            _changed.Remove(entity);
            _kept = null;
        }
        else
        {
            _added.Remove(entity);
            _addedById.Remove(id);
        }
    }

    private static IEnumerable<IfcEntityBase> Targets(IfcEntityBase entity) =>
        entity.Values.SelectMany(value => IfcReferences.Entities(value, entity.Model));

    private void VerifyTarget(IfcEntityBase owner, IfcEntityBase target)
    {
        if (target.Model is { } other && other != this)
        {
            throw new IfcImageException(
                $"{owner.DescribePlace()}it refers to #{target.InstanceId}={target.EntityName} of another model.");
        }

        VerifyEdition(target);
    }

    private void VerifyEdition(IfcEntityBase entity)
    {
        if (entity is OpaqueEntity)
        {
            throw new IfcImageException(
                $"{entity.DescribePlace()}its attributes are not known, so it cannot be added.");
        }

        if (entity.Class.Schema != Schema)
        {
            throw new IfcImageException($"{entity.GetType().Name} is not of the model's schema, {Schema.Table.Name}.");
        }
    }

    // A removed instance can be added again like a new one, so its references become the instances themselves.
    private static void Detach(IfcEntityBase entity)
    {
        for (int i = 0; i < entity.Class.Attributes.Length; i++)
        {
            try
            {
                Resolve(IfcPresentation.Present(entity, i));
            }
            catch (IfcImageException)
            {
                // A value of a wrong type has no meaning outside of its file.
                entity.Values[i] = null;
            }
        }

        entity.Model = null;
        entity.Record = -1;
        entity.InstanceId = 0;
    }

    private static void Resolve(object? value)
    {
        foreach (object? item in value as IfcCollection ?? (System.Collections.IEnumerable)Array.Empty<object>())
        {
            Resolve(item);
        }
    }

    private void Take(IfcEntityBase entity)
    {
        entity.Model = this;
        entity.InstanceId = ++_maxId;
        _added.Add(entity);
        _addedById.Add(entity.InstanceId, entity);
    }

    private IfcEntityBase Make(IfcEntityBase?[] all, int record)
    {
        short number = File.Index.Keywords[record];
        IfcEntityBase made = number >= 0
            ? Schema.Create(Schema.Classes[number])
            : new OpaqueEntity(Schema, OpaqueName(record));
        if (number >= 0)
        {
            made.Class = Schema.Classes[number];
        }

        made.Model = this;
        made.Record = record;
        made.InstanceId = File.Index.Ids[record];
        return Interlocked.CompareExchange(ref all[record], made, null) ?? made;
    }

    private string OpaqueName(int record)
    {
        StepParser parser = new(File.Data, BodyStart(record));
        return parser.Keyword() is { Length: > 0 } keyword ? keyword : "(several entities)";
    }

    // The offset after the equals sign.
    private int BodyStart(int record)
    {
        int start = File.Index.Starts[record];
        while (File.Data[start] != '=')
        {
            start++;
        }

        return start + 1;
    }

    // The records that were not removed; null for all.
    private int[]? Kept()
    {
        if (_removed.Count == 0)
        {
            return null;
        }

        return _kept ??= [.. Enumerable.Range(0, File.Index.Count).Where(record => !_removed.Contains(record))];
    }
}
