using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Header;

/// <summary>The section of classes. Source: Open Design Specification for .dwg files, 5.4.1, chapters 5.8 and
/// 10.</summary>
internal static class ClassSection
{
    /// <summary>The number of the first class, which object types from there on refer to.</summary>
    internal const int FirstNumber = 500;

    private const int EntityClass = 0x1F2;
    private const int ObjectClass = 0x1F3;
    private const int Counted = 2004;
    private const int Split = 2007;
    private const int MinBits = 24;
    private const int MaxClasses = 0x7FFF - FirstNumber;

    /// <summary>Reads the classes.</summary>
    /// <returns>The classes from number 500 on, without gaps.</returns>
    internal static List<CadClassEntity> Read(HeaderReader reader)
    {
        int last = ExchangeStart(reader, 0);
        Dictionary<int, CadClassEntity> found = [];
        while (reader.Remaining >= MinBits && found.Count < MaxClasses
            && (reader.Release < Counted || !found.ContainsKey(last)))
        {
            CadClassEntity item = new();
            found[Exchange(reader, item, 0)] = item;
        }

        List<CadClassEntity> classes = [];
        int[] numbers = new int[found.Count];
        found.Keys.CopyTo(numbers, 0);
        Array.Sort(numbers);
        foreach (int number in numbers)
        {
            // A class with a damaged number must not shift the others.
            if (number is < FirstNumber or >= FirstNumber + MaxClasses)
            {
                continue;
            }

            while (classes.Count < number - FirstNumber)
            {
                classes.Add(new CadClassEntity { DxfRecordName = $"CLASS_{FirstNumber + classes.Count}" });
            }

            classes.Add(found[number]);
        }

        return classes;
    }

    /// <summary>Writes classes.</summary>
    internal static void Write(HeaderStream stream, IReadOnlyList<CadClassEntity> classes)
    {
        ExchangeStart(stream, Math.Max(FirstNumber - 1, FirstNumber + classes.Count - 1));
        for (int i = 0; i < classes.Count; i++)
        {
            Exchange(stream, classes[i], FirstNumber + i);
        }
    }

    private static int ExchangeStart(HeaderStream stream, int last)
    {
        if (stream.Release < Counted)
        {
            return 0;
        }

        int number = stream.Release < Split ? stream.BitShort(last) : stream.BitLong(last);
        if (stream.Release < Split)
        {
            stream.RawByte(0);
            stream.RawByte(0);
        }

        stream.Bit(true);
        return number;
    }

    private static int Exchange(HeaderStream stream, CadClassEntity item, int number)
    {
        int found = stream.BitShort(number);
        item.ProxyFlags = (ushort)stream.BitShort(item.ProxyFlags);
        item.ApplicationName = stream.Text(item.ApplicationName);
        item.ClassName = stream.Text(item.ClassName);
        item.DxfRecordName = stream.Text(item.DxfRecordName);
        item.WasAProxy = stream.Bit(item.WasAProxy);
        item.IsEntity = stream.BitShort(item.IsEntity ? EntityClass : ObjectClass) == EntityClass;
        if (stream.Release >= Counted)
        {
            item.InstanceCount = stream.BitLong(item.InstanceCount);
            item.FormatVersion = stream.BitLong(item.FormatVersion);
            item.MaintenanceVersion = stream.BitLong(item.MaintenanceVersion);
            stream.BitLong(0);
            stream.BitLong(0);
        }

        return found;
    }
}
