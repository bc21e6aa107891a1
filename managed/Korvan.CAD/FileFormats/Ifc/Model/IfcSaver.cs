using System;
using System.Collections.Generic;
using System.IO;
using System.IO.Compression;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Ifc.Header;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>Writes a model: the bytes of its file, in which changed records replace the original ones, removed records
/// are left out, and added records follow at the end of the DATA section.</summary>
internal static class IfcSaver
{
    internal static void Save(IfcModel model, IfcHeader header, bool isPacked, Stream target)
    {
        List<(int Start, int End, byte[] Text)> changes = Changes(model, header);
        if (!isPacked)
        {
            Write(model.File.Data, changes, target);
            return;
        }

        using ZipArchive archive = new(target, ZipArchiveMode.Create, true);
        using Stream entry = archive.CreateEntry("model.ifc").Open();
        Write(model.File.Data, changes, entry);
    }

    // All records are made before the first byte is written, so that a failure leaves no partial output.
    private static List<(int Start, int End, byte[] Text)> Changes(IfcModel model, IfcHeader header)
    {
        List<(int Start, int End, byte[] Text)> changes = [];
        foreach ((StepText.StepHeaderRecord record, string text) in header.Changes())
        {
            changes.Add((record.Start, record.End, Encoding.Latin1.GetBytes(text)));
        }

        changes.AddRange(model.File.Damaged.Select(one => (one.Start, one.End, Array.Empty<byte>())));
        foreach (int record in model.Removed)
        {
            changes.Add((model.File.Index.Starts[record], model.File.Index.Ends[record], []));
        }

        StringBuilder line = new();
        foreach (IfcEntityBase entity in model.Changed)
        {
            int record = entity.Record;
            changes.Add((model.File.Index.Starts[record], model.File.Index.Ends[record], Record(entity, line)));
        }

        if (model.File.NeedsRepair)
        {
            AddRepairs(model, changes);
        }

        int end = model.File.DataEnd;
        foreach (IfcEntityBase entity in model.Added)
        {
            changes.Add((end, end, [.. Record(entity, line), (byte)'\n']));
        }

        if (model.File.Tail is { Length: > 0 } tail)
        {
            int last = model.File.Data.Length;
            changes.Add((last, last, Encoding.Latin1.GetBytes(tail)));
        }

        return [.. changes.OrderBy(one => one.Start).ThenBy(one => one.End)];
    }

    // What was loaded in spite of its defects is written without them: a number has one record, a reference that leads
    // nowhere is no value, and an entity that the schema does not have is a user-defined one.
    private static void AddRepairs(IfcModel model, List<(int Start, int End, byte[] Text)> changes)
    {
        HashSet<int> replaced = [.. model.Removed, .. model.Changed.Select(static entity => entity.Record)];
        StepText.StepIndex index = model.File.Index;
        for (int record = 0; record < index.Count; record++)
        {
            (int start, int end) = (index.Starts[record], index.Ends[record]);
            if (replaced.Contains(record))
            {
                continue;
            }

            if (model.RecordOf(index.Ids[record]) != record)
            {
                changes.Add((start, end, []));
                continue;
            }

            if (index.Keywords[record] < 0)
            {
                AddMarks(model, start, end, changes);
            }

            StepText.StepReferenceWalk walk = new(model.File.Data.AsSpan(start..end));
            while (walk.MoveNext())
            {
                if (model.RecordOf(walk.Id) < 0)
                {
                    changes.Add((start + walk.Place.Start.Value, start + walk.Place.End.Value, [(byte)'$']));
                }
            }
        }
    }

    private static void AddMarks(
        IfcModel model, int start, int end, List<(int Start, int End, byte[] Text)> changes)
    {
        ReadOnlySpan<byte> record = model.File.Data.AsSpan(start..end);
        foreach (Range place in StepText.StepEntityNames.Of(record, out bool isComplex))
        {
            ReadOnlySpan<byte> name = record[place];
            bool isKnown = model.Schema.FindClass(Encoding.ASCII.GetString(name)) is { } found
                && (isComplex || !found.IsAbstract);
            if (!isKnown && !StepText.StepCharacters.IsUserDefined(name))
            {
                int at = start + place.Start.Value;
                changes.Add((at, at, StepText.StepCharacters.IsLetter(name[0]) ? "!"u8.ToArray() : "!_"u8.ToArray()));
            }
        }
    }

    private static byte[] Record(IfcEntityBase entity, StringBuilder line)
    {
        line.Clear();
        IfcRecordWriter.Write(entity, line, false);
        return Encoding.Latin1.GetBytes(line.ToString());
    }

    private static void Write(byte[] data, List<(int Start, int End, byte[] Text)> changes, Stream target)
    {
        int at = 0;
        foreach ((int start, int end, byte[] text) in changes)
        {
            target.Write(data, at, start - at);
            target.Write(text);
            at = end;
        }

        target.Write(data, at, data.Length - at);
    }
}
