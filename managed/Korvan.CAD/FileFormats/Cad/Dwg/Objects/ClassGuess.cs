using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>Finds the classes of a file whose section of classes is lost: the fields of one class take up all bits of
/// its objects, those of others do not.</summary>
internal static class ClassGuess
{
    private const int MaxClasses = 1000;
    private const int MaxSamples = 8;
    private const int Padding = 8; // references end at a byte
    private const string Image = "IMAGE";

    // Classes that files do not state, and those that later releases have numbers of their own for.
    private static readonly string[] Names =
        [.. WrittenClasses.Names, "ACDBPLACEHOLDER", "HATCH", "LAYOUT", "LWPOLYLINE", "XRECORD"];

    private static readonly string[][] Families =
    [
        [Image, "WIPEOUT"], ["PDFUNDERLAY", "DWFUNDERLAY", "DGNUNDERLAY"],
        ["PDFDEFINITION", "DWFDEFINITION", "DGNDEFINITION"], ["ACDBPLACEHOLDER", "OBJECT_PTR"],
    ];

    /// <summary>Returns the classes in the order of their numbers. Those that no object tells have no names that a
    /// class of the library has.</summary>
    internal static List<CadClassEntity> Find(DwgFile file)
    {
        CadClassEntity tried = new();
        RecordFormat format = new(file.Release, file.Encoding, new RecordNames());
        RecordReader reader = new(file.Objects, format, [.. Enumerable.Repeat(tried, MaxClasses)]);
        SortedDictionary<int, List<RecordHeader>> samples = SamplesOf(file, reader);
        List<CadClassEntity> classes = [];
        foreach ((int number, List<RecordHeader> records) in samples)
        {
            while (classes.Count < number)
            {
                classes.Add(Unnamed(classes.Count));
            }

            classes.Add(NameOf(reader, tried, records) is { } name
                ? WrittenClasses.Describe(name, RecordReader.IsEntity(name)) : Unnamed(number));
        }

        return classes;
    }

    private static CadClassEntity Unnamed(int number) =>
        WrittenClasses.Describe($"DWG_TYPE_{ObjectTypeTable.FirstClass + number}", isEntity: false);

    // Records of each class, the longest ones among the first of the file.
    private static SortedDictionary<int, List<RecordHeader>> SamplesOf(DwgFile file, RecordReader reader)
    {
        SortedDictionary<int, List<RecordHeader>> samples = [];
        for (int i = 0; i < file.Map.Count; i++)
        {
            Budget.Check();
            try
            {
                RecordHeader header = reader.ReadHeader(file.Map.Offsets[i]);
                int number = header.Type - ObjectTypeTable.FirstClass;
                bool isWhole = file.HasRightChecksum(file.Map.Offsets[i], header.End >> 3);
                if (number is >= 0 and < MaxClasses && isWhole)
                {
                    samples.TryAdd(number, []);
                    samples[number].Add(header);
                }
            }
            catch (DwgFault)
            {
                continue;
            }
        }

        foreach (List<RecordHeader> records in samples.Values)
        {
            records.Sort(static (one, other) => (other.End - other.Start).CompareTo(one.End - one.Start));
            records.RemoveRange(Math.Min(records.Count, MaxSamples), Math.Max(records.Count - MaxSamples, 0));
        }

        return samples;
    }

    private static string? NameOf(RecordReader reader, CadClassEntity tried, List<RecordHeader> records)
    {
        List<string> names = [];
        foreach (string name in Names)
        {
            tried.DxfRecordName = name;
            tried.IsEntity = RecordReader.IsEntity(name);
            if (records.TrueForAll(record => Fits(reader, record)))
            {
                names.Add(name);
            }
        }

        return names.Count == 1 ? names[0] : LikeliestOf(reader, tried, names, records);
    }

    // Some classes have the same fields. Images have a definition, wipeouts have none.
    private static string? LikeliestOf(
        RecordReader reader, CadClassEntity tried, List<string> names, List<RecordHeader> records)
    {
        string[]? family = Array.Find(Families, one => names.Count > 0 && names.TrueForAll(one.Contains));
        if (family is null || family[0] != Image)
        {
            return family?[0];
        }

        (tried.DxfRecordName, tried.IsEntity) = (Image, true);
        return reader.Read(records[0]).Target is CadRasterImage { ImageDefReference: not ("" or "0") }
            ? Image : family[1];
    }

    private static bool Fits(RecordReader reader, in RecordHeader record)
    {
        Budget.Step(1);
        try
        {
            CadBaseObject? item = reader.Read(record).Target;
            return item is { HasAllBits: true } && reader.DataRemaining == 0 && reader.HandlesRemaining < Padding;
        }
        catch (DwgFault)
        {
            return false;
        }
    }
}
