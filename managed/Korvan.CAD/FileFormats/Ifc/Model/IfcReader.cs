using System;
using System.Collections.Generic;
using System.IO;
using System.IO.Compression;
using System.Linq;
using System.Threading.Tasks;
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

    private readonly List<StepError> _errors = [];
    private bool _isTranslated;

    /// <summary>Reads the file.</summary>
    /// <exception cref="ImageLoadException">It is damaged, and damage is not to be ignored.</exception>
    internal IfcImage Read()
    {
        bool isPacked = data.AsSpan().StartsWith("PK\u0003\u0004"u8);
        if (isPacked)
        {
            data = Unpack(out name);
        }

        bool isXml = FormatDetector.IsIfcXml(data);
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
        _errors.AddRange(file.Errors);
        IfcIdMap ids = new(file.Index.Ids);
        VerifyIds(file, ids);
        VerifyReferences(file, ids);
        Report();
        IfcFileForm form = isPacked ? IfcFileForm.Packed : isXml ? IfcFileForm.Xml : IfcFileForm.Plain;
        return new IfcImage(new IfcModel(file, schema, ids), header, form);
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
            if (ids.Find(all[i]) != i)
            {
                int other = StepCharacters.LineOf(data, file.Index.Starts[ids.Find(all[i])]);
                _errors.Add(new StepError(
                    file.Index.Starts[i], all[i], $"its number is used again in line {other}"));
            }
        }
    }

    private void VerifyReferences(StepFile file, IfcIdMap ids)
    {
        const int Block = 4096;
        int blocks = (file.Index.Count + Block - 1) / Block;
        List<StepError>?[] found = new List<StepError>?[blocks];
        Parallel.For(0, blocks, i =>
        {
            int end = Math.Min(file.Index.Count, (i + 1) * Block);
            for (int record = i * Block; record < end; record++)
            {
                VerifyReferences(file, ids, record, ref found[i]);
            }
        });
        _errors.AddRange(found.Where(one => one is not null).SelectMany(one => one!));
    }

    private static void VerifyReferences(StepFile file, IfcIdMap ids, int record, ref List<StepError>? errors)
    {
        int start = file.Index.Starts[record];
        StepReferenceWalk walk = new(file.Data.AsSpan(start..file.Index.Ends[record]));
        while (walk.MoveNext())
        {
            if (ids.Find(walk.Id) < 0)
            {
                string message = $"it refers to #{walk.Id}, which does not exist";
                (errors ??= []).Add(new StepError(start, file.Index.Ids[record], message));
            }
        }
    }

    private void Report()
    {
        const int MostErrors = 10_000;
        _errors.Sort(static (a, b) => a.Offset.CompareTo(b.Offset));
        if (_errors.Count > 0 && !options.IgnoreErrors)
        {
            string more = _errors.Count > 1 ? $" There are {_errors.Count - 1} more errors." : string.Empty;
            throw new ImageLoadException(Word(_errors[0]) + more);
        }

        options.Errors.AddRange(_errors.Take(MostErrors).Select(Word));
        if (_errors.Count > MostErrors)
        {
            options.Errors.Add($"'{name}': there are {_errors.Count - MostErrors} more errors.");
        }
    }

    private string Word(StepError error)
    {
        string instance = error.Id > 0 ? $", #{error.Id}" : string.Empty;
        string line = _isTranslated ? string.Empty : $", line {StepCharacters.LineOf(data, error.Offset)}";
        return $"'{name}'{line}{instance}: {error.Message}.";
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
            throw new ImageLoadException($"'{name}' is a damaged ZIP file: {e.Message}", e);
        }
    }

    // The stated size bounds what is read: a file that unpacks to more is damaged.
    private byte[] Unpack(ZipArchiveEntry entry)
    {
        if (entry.Length is < 1 or > LargestPacked)
        {
            throw new ImageLoadException($"'{name}': '{entry.FullName}' has {entry.Length} bytes; up to "
                + $"{LargestPacked} can be read.");
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
