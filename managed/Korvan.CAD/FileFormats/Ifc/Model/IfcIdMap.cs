using System;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>Finds records by the identifiers of instances: in a table if identifiers are dense, otherwise by binary
/// search.</summary>
internal sealed class IfcIdMap
{
    private const int Slack = 4;

    private readonly int[]? _dense;
    private readonly long[]? _sorted;
    private readonly int[]? _records;

    /// <summary>Creates the map. Of records with the same identifier, the last one is found.</summary>
    internal IfcIdMap(ReadOnlySpan<long> ids)
    {
        long largest = 0;
        foreach (long id in ids)
        {
            largest = Math.Max(largest, id);
        }

        MaxId = largest;
        if (largest <= ((long)ids.Length * Slack) + 1024)
        {
            _dense = new int[largest + 1];
            for (int i = 0; i < ids.Length; i++)
            {
                _dense[ids[i]] = i + 1;
            }

            return;
        }

        _sorted = ids.ToArray();
        _records = new int[ids.Length];
        for (int i = 0; i < _records.Length; i++)
        {
            _records[i] = i;
        }

        Array.Sort(_sorted, _records);
    }

    /// <summary>Gets the largest identifier.</summary>
    internal long MaxId { get; }

    /// <summary>Returns the record of an instance, or -1.</summary>
    internal int Find(long id)
    {
        if (_dense is { } dense)
        {
            return (ulong)id < (ulong)dense.Length ? dense[id] - 1 : -1;
        }

        int at = Array.BinarySearch(_sorted!, id);
        return at >= 0 ? _records![at] : -1;
    }
}
