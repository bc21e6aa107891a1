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
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Ifc.Model;

/// <summary>Reads a file into a model: the schema from the header, then the records in one scan, then the
/// references.</summary>
internal sealed class IfcReader(byte[] data, string name, LoadOptions options)
{
    private const long MaxUnpackedLength = 2_000_000_000;
    private const int MaxPackingRatio = 1100;

    // Addenda and corrigenda keep the layout of their version.
    private static readonly Dictionary<string, IfcVersion> Versions = new(StringComparer.OrdinalIgnoreCase)
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

    private readonly StepDefects _defects = new();
    private StepLines? _lines;
    private bool _isTranslated;

    /// <summary>Reads the file.</summary>
    /// <exception cref="ImageLoadException">It is damaged, and errors are not ignored.</exception>
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
        _defects.Add(file.Defects);
        IfcIdMap ids = new(file.Index.Ids);
        VerifyIds(file, ids);
        VerifyReferences(file, ids);
        file.NeedsRepair = _defects.Count > 0;
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
            throw new ImageLoadException(Located(new StepDefect(e.Code, e.Offset, 0, e.Message)), e);
        }
    }

    private IfcVersion FindVersion(IfcHeader header)
    {
        IReadOnlyList<string> schemas = header.FileSchema.Schemas;
        string stated = schemas.Count > 0 ? schemas[0].Trim() : "none";
        return Versions.TryGetValue(stated, out IfcVersion version)
            ? version
            : throw Refusal(
                LoadDefectCode.UnknownSchema,
                $"the schema {stated} is not supported; those that are: {string.Join(", ", Versions.Keys)}");
    }

    private void VerifyIds(StepFile file, IfcIdMap ids)
    {
        ReadOnlySpan<long> all = file.Index.Ids;
        for (int i = 0; i < all.Length; i++)
        {
            if (ids.Find(all[i]) is var other && other != i)
            {
                int place = file.Index.Starts[other];
                const string cause = "its number is used again in line ";
                _defects.Add(new StepDefect(LoadDefectCode.DuplicateId, file.Index.Starts[i], all[i], cause, place));
            }
        }
    }

    private void VerifyReferences(StepFile file, IfcIdMap ids)
    {
        const int block = 1 << 16;
        int blocks = (file.Index.Count + block - 1) / block;
        StepDefects[] found = new StepDefects[blocks];
        ForkedProcess.RunPieces(blocks, i =>
        {
            found[i] = new StepDefects();
            int end = Math.Min(file.Index.Count, (i + 1) * block);
            Budget.Check();
            for (int record = i * block; record < end; record++)
            {
                VerifyReferences(file, ids, record, found[i]);
            }
        });
        foreach (StepDefects defects in found)
        {
            _defects.Add(defects);
        }
    }

    private static void VerifyReferences(StepFile file, IfcIdMap ids, int record, StepDefects defects)
    {
        int start = file.Index.Starts[record];
        StepReferenceWalk walk = new(file.Data.AsSpan(start..file.Index.Ends[record]));
        while (walk.MoveNext())
        {
            if (ids.Find(walk.Id) >= 0)
            {
                continue;
            }

            if (defects.IsFull)
            {
                defects.CountOne();
                continue;
            }

            string cause = $"it refers to #{walk.Id}, which does not exist";
            defects.Add(new StepDefect(LoadDefectCode.UnresolvedReference, start, file.Index.Ids[record], cause));
        }
    }

    private void Report(StepFile file)
    {
        if (_defects.Count > 0 && (!options.IgnoreErrors || file.IsHopeless))
        {
            string more = _defects.Count > 1 ? $" There are {_defects.Count - 1} more errors." : string.Empty;
            throw new ImageLoadException(Located(_defects.Kept.First()), more);
        }

        foreach (StepDefect defect in _defects.Kept)
        {
            options.Report(Located(defect));
        }

        if (_defects.Count > _defects.KeptCount)
        {
            string cause = $"there are {_defects.Count - _defects.KeptCount} more errors";
            options.Report(new LoadDefect(LoadDefectCode.NotKept, new LoadPlace(name), cause));
        }
    }

    private LoadDefect Located(StepDefect defect)
    {
        StepLines lines = _lines ??= new StepLines(data);
        int line = _isTranslated ? 0 : lines.LineOf(defect.Offset);
        string record = defect.Id > 0 ? $"#{defect.Id}" : string.Empty;
        string other = defect.Other >= 0
            ? lines.LineOf(defect.Other).ToString(CultureInfo.InvariantCulture)
            : string.Empty;
        return new LoadDefect(defect.Code, new LoadPlace(name, line, record), defect.Cause + other);
    }

    private ImageLoadException Refusal(LoadDefectCode code, string cause) =>
        new(new LoadDefect(code, new LoadPlace(name), cause));

    private byte[] Unpack(out string entryName)
    {
        try
        {
            using ZipArchive archive = new(new MemoryStream(data, false), ZipArchiveMode.Read);
            ZipArchiveEntry[] models = [.. archive.Entries.Where(IsModel)];
            if (models.Length != 1)
            {
                throw Refusal(
                    LoadDefectCode.InvalidArchive,
                    $"the archive holds {models.Length} building models (.ifc); one was expected");
            }

            entryName = $"{name}/{models[0].FullName}";
            return Unpack(models[0]);
        }
        catch (InvalidDataException e)
        {
            throw Refusal(LoadDefectCode.InvalidArchive, $"the ZIP archive is damaged: {e.Message.TrimEnd('.')}");
        }
    }

    // The stated size limits what is read: an entry that unpacks to more is damaged.
    private byte[] Unpack(ZipArchiveEntry entry)
    {
        // No memory is allocated for a stated size that compression cannot yield.
        if (entry.Length is < 1 or > MaxUnpackedLength || entry.Length / MaxPackingRatio > entry.CompressedLength)
        {
            throw Refusal(
                LoadDefectCode.InvalidArchive,
                $"'{entry.FullName}' has {entry.Length} bytes in {entry.CompressedLength} packed ones; up to "
                    + $"{MaxUnpackedLength} can be read");
        }

        using Stream stream = entry.Open();
        Budget.VerifyRoom(entry.Length);
        byte[] content = new byte[entry.Length];
        int count = stream.ReadAtLeast(content, content.Length, false);
        return count == content.Length
            ? content
            : throw Refusal(LoadDefectCode.InvalidArchive, $"'{entry.FullName}' ends after {count} bytes");
    }

    private static bool IsModel(ZipArchiveEntry entry) =>
        entry.FullName.EndsWith(".ifc", StringComparison.OrdinalIgnoreCase);
}
