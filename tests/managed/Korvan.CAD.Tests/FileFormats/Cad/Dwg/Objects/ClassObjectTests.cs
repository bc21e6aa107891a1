using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Dwg.Bits;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Header;
using Korvan.CAD.FileFormats.Cad.Dwg.Objects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Tests.FileFormats.Cad.Dwg.Container;
using Xunit;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Objects;

/// <summary>Objects of classes that files define: the fields that their classes state use up the data of each object of
/// the real drawings to the last bit.</summary>
public class ClassObjectTests
{
    // How many of each class the drawings have.
    private static readonly Dictionary<string, int> Expected = new()
    {
        ["ACAD_EVALUATION_GRAPH"] = 27,
    };

    [DrawingFact]
    public void Fields_use_up_the_data_of_objects()
    {
        Dictionary<string, int> exact = [];
        foreach (string file in DwgSamples.Files())
        {
            LoadOptions options = new() { IgnoreErrors = true };
            foreach (string name in ExactObjects(DwgSamples.Open(File.ReadAllBytes(file), file, options)))
            {
                exact[name] = exact.GetValueOrDefault(name) + 1;
            }
        }

        Assert.Equal(
            Expected.Select(static item => $"{item.Key} {item.Value}").Order(),
            Expected.Keys.Select(name => $"{name} {exact.GetValueOrDefault(name)}").Order());
    }

    private static IEnumerable<string> ExactObjects(DwgFile file)
    {
        List<CadClassEntity> classes = ClassSection.Read(new HeaderReader(file.Classes, file.Release, file.Encoding));
        RecordReader reader = new(
            file.Objects, new RecordFormat(file.Release, file.Encoding, new RecordNames()), classes);
        foreach (long offset in file.Map.Offsets)
        {
            if (TryRead(reader, offset) is { } name)
            {
                yield return name;
            }
        }
    }

    private static string? TryRead(RecordReader reader, long offset)
    {
        try
        {
            RecordHeader header = reader.ReadHeader(offset);
            bool isKnown = reader.Read(header).Target is not (RawObject or RawEntity);
            return isKnown && reader.DataRemaining == 0 ? reader.NameOf(header.Type) : null;
        }
        catch (DwgFault)
        {
            return null;
        }
    }
}
