using System;
using System.Collections.Generic;
using System.Globalization;
using System.IO;
using System.IO.Compression;
using System.Linq;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.FileFormats.Ifc.Header;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.FileFormats.Ifc.Xml;
using Korvan.CAD.FileFormats.StepText;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>Reads a file into a model: the schema by the header, then one scan over the data, then the references.</summary>
internal sealed class IfcReader(byte[] data, string name, LoadOptions options)
{
    private const long LargestPacked = 2_000_000_000;
    private const int MostPackedRatio = 1100;

    // Addenda and corrigenda keep the layout of their edition.
    private static readonly Dictionary<string, IfcVersion> s_schemas = new(StringComparer.OrdinalIgnoreCase)
    {
        ["IFC2X3"] = IfcVersion.IFC2X3,
        ["IFC2X3_FINAL"] = IfcVersion.IFC2X3,
        ["IFC2X3_TC1"] = IfcVersion.IFC2X3,
        ["IFC4"] = IfcVersion.IFC4,
        ["IFC4_ADD1"] = IfcVersion.IFC4,
        ["IFC4_ADD2"] = IfcVersion.IFC4,
        ["IFC4_ADD2_TC1"] = IfcVersion.IFC4,
        ["IFC4X3"] = IfcVersion.IFC4X3,
        ["IFC4X3_TC1"] = IfcVersion.IFC4X3,
        ["IFC4X3_ADD1"] = IfcVersion.IFC4X3,
        ["IFC4X3_ADD2"] = IfcVersion.IFC4X3,
    };

    private readonly StepErrors _errors = new();
    private StepLines? _lines;
    private bool _isTranslated;

    /// <summary>Reads the file.</summary>
    /// <exception cref="ImageLoadException">It is damaged, and damage is not to be ignored.</exception>
    internal IfcContent Read()
    {
        bool isPacked = data.AsSpan().StartsWith("PK\u0003\u0004"u8);
        if (isPacked)
        {
            data = Unpack(out name);
        }

        bool isXml = IfcXml.IsIfcXml(data);
        if (isXml)
        {
            data = new IfcXmlTranslator(name, options).Translate(data);
            _isTranslated = true;
        }

        StepFile file = Open(out int start);
        IfcHeader header = new(file.Header);
        IfcSchema schema = IfcSchema.Of(FindVersion(header));
        int[] arities = [.. schema.Classes.Select(one => one.IsAbstract ? -1 : one.Attributes.Length)];
        file.ScanData(start, new KeywordTable([.. schema.Classes.Select(one => one.Keyword)]), arities);
        _errors.Add(file.Errors);
        IfcIdMap ids = new(file.Index.Ids);
        VerifyIds(file, ids);
        VerifyReferences(file, ids);
        Report(file);
        IfcFileForm form = isPacked ? IfcFileForm.Packed : isXml ? IfcFileForm.Xml : IfcFileForm.Plain;
        return new IfcContent(new IfcModel(file, schema, ids), header, form);
    }

    private StepFile Open(out int start)
    {
        try
        {
            return StepFile.Open(data, out start);
        }
        catch (StepException e)
        {
            throw new ImageLoadException(Word(new StepError(e.Offset, 0, e.Message)), e);
        }
    }

    private IfcVersion FindVersion(IfcHeader header)
    {
        IReadOnlyList<string> schemas = header.FileSchema.Schemas;
        string stated = schemas.Count > 0 ? schemas[0].Trim() : "none";
        return s_schemas.TryGetValue(stated, out IfcVersion version)
            ? version
            : throw new ImageLoadException(
                $"'{name}' is of the schema {stated}; those of {string.Join(", ", s_schemas.Keys)} can be read.");
    }

    private void VerifyIds(StepFile file, IfcIdMap ids)
    {
        ReadOnlySpan<long> all = file.Index.Ids;
        for (int i = 0; i < all.Length; i++)
        {
            if (ids.Find(all[i]) is var other && other != i)
            {
                int place = file.Index.Starts[other];
                _errors.Add(new StepError(file.Index.Starts[i], all[i], "its number is used again in line ", place));
            }
        }
    }

    private void VerifyReferences(StepFile file, IfcIdMap ids)
    {
        const int Block = 1 << 16;
        int blocks = (file.Index.Count + Block - 1) / Block;
        StepErrors[] found = new StepErrors[blocks];
        ForkedProcess.RunPieces(blocks, i =>
        {
            found[i] = new StepErrors();
            int end = Math.Min(file.Index.Count, (i + 1) * Block);
            for (int record = i * Block; record < end; record++)
            {
                VerifyReferences(file, ids, record, found[i]);
            }
        });
        foreach (StepErrors errors in found)
        {
            _errors.Add(errors);
        }
    }

    private static void VerifyReferences(StepFile file, IfcIdMap ids, int record, StepErrors errors)
    {
        int start = file.Index.Starts[record];
        StepReferenceWalk walk = new(file.Data.AsSpan(start..file.Index.Ends[record]));
        while (walk.MoveNext())
        {
            if (ids.Find(walk.Id) >= 0)
            {
                continue;
            }

            if (errors.IsFull)
            {
                errors.CountOne();
                continue;
            }

            string message = $"it refers to #{walk.Id}, which does not exist";
            errors.Add(new StepError(start, file.Index.Ids[record], message));
        }
    }

    private void Report(StepFile file)
    {
        if (_errors.Count > 0 && (!options.IgnoreErrors || file.IsHopeless))
        {
            string more = _errors.Count > 1 ? $" There are {_errors.Count - 1} more errors." : string.Empty;
            throw new ImageLoadException(Word(_errors.Kept.First()) + more);
        }

        options.Errors.AddRange(_errors.Kept.Select(Word));
        if (_errors.Count > _errors.KeptCount)
        {
            options.Errors.Add($"'{name}': there are {_errors.Count - _errors.KeptCount} more errors.");
        }
    }

    private string Word(StepError error)
    {
        StepLines lines = _lines ??= new StepLines(data);
        string instance = error.Id > 0 ? $", #{error.Id}" : string.Empty;
        string line = _isTranslated ? string.Empty : $", line {lines.LineOf(error.Offset)}";
        string other = error.Other >= 0 ? lines.LineOf(error.Other).ToString(CultureInfo.InvariantCulture) : string.Empty;
        return $"'{name}'{line}{instance}: {error.Message}{other}.";
    }

    private byte[] Unpack(out string entryName)
    {
        try
        {
            using ZipArchive archive = new(new MemoryStream(data, false), ZipArchiveMode.Read);
            ZipArchiveEntry[] models = [.. archive.Entries.Where(IsModel)];
            if (models.Length != 1)
            {
                throw new ImageLoadException(
                    $"'{name}' holds {models.Length} building models (.ifc); one was expected.");
            }

            entryName = $"{name}/{models[0].FullName}";
            return Unpack(models[0]);
        }
        catch (InvalidDataException e)
        {
            throw new ImageLoadException($"'{name}' is a damaged ZIP file: {e.Message}");
        }
    }

    // The stated size bounds what is read: a file that unpacks to more is damaged.
    private byte[] Unpack(ZipArchiveEntry entry)
    {
        // What states more than packing can yield does not get the memory that it states.
        if (entry.Length is < 1 or > LargestPacked || entry.Length / MostPackedRatio > entry.CompressedLength)
        {
            throw new ImageLoadException($"'{name}': '{entry.FullName}' has {entry.Length} bytes in "
                + $"{entry.CompressedLength} packed ones; up to {LargestPacked} can be read.");
        }

        using Stream stream = entry.Open();
        byte[] content = new byte[entry.Length];
        int count = stream.ReadAtLeast(content, content.Length, false);
        return count == content.Length
            ? content
            : throw new ImageLoadException($"'{name}': '{entry.FullName}' ends after {count} bytes.");
    }

    private static bool IsModel(ZipArchiveEntry entry) =>
        entry.FullName.EndsWith(".ifc", StringComparison.OrdinalIgnoreCase);
}
