using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>The instances that refer to an instance. The references of the file are collected at the first request;
/// those that programs assign are stored separately.</summary>
internal sealed class IfcReferences(IfcModel model)
{
    private readonly Dictionary<IfcEntityBase, HashSet<IfcEntityBase>> _later = [];
    private int[]? _starts;
    private int[] _referrers = [];
    private byte[] _attributes = [];

    /// <summary>Returns the entities in a value.</summary>
    internal static IEnumerable<IfcEntityBase> Entities(object? value, IfcModel? from) => value switch
    {
        IfcEntityBase entity => [entity],
        StepRef reference => from?.Find(reference.Id) is { } found ? [found] : [],
        StepTyped typed => Entities(typed.Value, from),
        IfcSelect select => Entities(select.Value, from),
        object?[] items => items.SelectMany(item => Entities(item, from)),
        IfcCollection collection => collection.Raw.SelectMany(item => Entities(item, from)),
        _ => [],
    };

    internal void NoteAdded(IfcEntityBase target, IfcEntityBase referrer)
    {
        if (!_later.TryGetValue(target, out HashSet<IfcEntityBase>? all))
        {
            _later[target] = all = [];
        }

        all.Add(referrer);
    }

    /// <summary>Returns all instances that refer to one, in file order.</summary>
    internal IReadOnlyList<IIfcEntity> Referrers(IfcEntityBase target) => Find(target, null);

    /// <summary>Returns the instances that refer to this one through the attribute that an inverse attribute inverts,
    /// in file order.</summary>
    internal IReadOnlyList<IIfcEntity> Inverse(IfcEntityBase target, IfcInverseInfo info) => Find(target, info);

    private IfcEntityList Find(IfcEntityBase target, IfcInverseInfo? info)
    {
        List<int> records = [];
        List<IfcEntityBase> added = [];
        if (target.Record >= 0)
        {
            AddFromFile(target, info, records);
        }

        if (_later.TryGetValue(target, out HashSet<IfcEntityBase>? later))
        {
            AddLater(target, info, later, records, added);
        }

        int[] found = Distinct(records);
        return new IfcEntityList(model, found, found.Length, added);
    }

    private void AddLater(
        IfcEntityBase target,
        IfcInverseInfo? info,
        HashSet<IfcEntityBase> referrers,
        List<int> records,
        List<IfcEntityBase> added)
    {
        foreach (IfcEntityBase referrer in referrers)
        {
            if (referrer.Model != model || !Refers(referrer, target, info))
            {
                continue;
            }

            if (referrer.Record >= 0)
            {
                records.Add(referrer.Record);
            }
            else
            {
                added.Add(referrer);
            }
        }

        added.Sort(static (a, b) => a.InstanceId.CompareTo(b.InstanceId));
    }

    private void AddFromFile(IfcEntityBase target, IfcInverseInfo? info, List<int> records)
    {
        int[] starts = _starts ??= Gather();
        for (int i = starts[target.Record]; i < starts[target.Record + 1]; i++)
        {
            int referrer = _referrers[i];
            bool fits = !model.Removed.Contains(referrer) && (info is null || Fits(referrer, _attributes[i], info));
            if (fits && (model.Known(referrer) is not { Changed: not 0 } changed || Refers(changed, target, info)))
            {
                records.Add(referrer);
            }
        }
    }

    // In file order; an instance that refers twice is returned once.
    private static int[] Distinct(List<int> records)
    {
        int[] all = [.. records];
        Array.Sort(all);
        int count = 0;
        for (int i = 0; i < all.Length; i++)
        {
            if (count == 0 || all[count - 1] != all[i])
            {
                all[count++] = all[i];
            }
        }

        return all[..count];
    }

    private bool Fits(int record, byte attribute, IfcInverseInfo info)
    {
        short number = model.File.Index.Keywords[record];
        return attribute == info.Attribute && number >= info.Referrer.Number && number <= info.Referrer.Last;
    }

    private bool Refers(IfcEntityBase referrer, IfcEntityBase target, IfcInverseInfo? info)
    {
        if (info is null)
        {
            return referrer.Values.Any(value => Entities(value, model).Contains(target));
        }

        return referrer.Class.IsA(info.Referrer) && Entities(referrer.Values[info.Attribute], model).Contains(target);
    }

    // Two passes over the file: to count, and to fill.
    private int[] Gather()
    {
        int count = model.File.Index.Count;
        int[] starts = new int[count + 2];
        for (int record = 0; record < count; record++)
        {
            StepReferenceWalk walk = new(model.Bytes(record));
            while (walk.MoveNext())
            {
                int target = model.RecordOf(walk.Id);
                starts[target + 2] += target >= 0 ? 1 : 0;
            }
        }

        for (int i = 2; i < starts.Length; i++)
        {
            starts[i] += starts[i - 1];
        }

        _referrers = new int[starts[^1]];
        _attributes = new byte[starts[^1]];
        for (int record = 0; record < count; record++)
        {
            StepReferenceWalk walk = new(model.Bytes(record));
            while (walk.MoveNext())
            {
                int target = model.RecordOf(walk.Id);
                if (target >= 0)
                {
                    int place = starts[target + 1]++;
                    _referrers[place] = record;
                    _attributes[place] = (byte)walk.Attribute;
                }
            }
        }

        return starts;
    }
}
