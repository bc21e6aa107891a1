using System;
using System.Collections.Generic;
using System.IO;
using System.Text;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf.Releases;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Writes drawings as text or binary interchange files.</summary>
internal sealed class DxfSaver
{
    private const int BitmapChunk = 127;
    private const int WithWordCodes = 1994;

    private readonly CadDrawing _drawing;
    private readonly CadAcadVersion _version;
    private readonly DxfTagWriter _writer;
    private readonly DxfObjectWriter _objects;

    private DxfSaver(CadDrawing drawing, CadAcadVersion version, Stream stream)
    {
        _drawing = drawing;
        _version = version;
        int year = DrawingRelease.Year(version);
        _writer = new DxfTagWriter(stream, EncodingOf(drawing, version), year, LayoutOf(drawing, year));
        _objects = new DxfObjectWriter(_writer, drawing.ClassEntities.Items);
    }

    /// <summary>Writes a drawing. One that was read from a binary file is written as one.</summary>
    /// <param name="drawing">The drawing. Objects that have none get handles; its content stays as it is.</param>
    /// <param name="options">The release.</param>
    /// <param name="stream">The file.</param>
    /// <param name="createMeasurer">Makes what measures texts, where they have to be wrapped.</param>
    /// <returns>What the release cannot hold, and what was left out because it is kept in the form of another
    /// format.</returns>
    internal static IReadOnlyList<string> Save(
        CadDrawing drawing, DxfOptions options, Stream stream, Func<ITextMeasurer?>? createMeasurer = null)
    {
        CadAcadVersion version = DxfRelease.From(options.Version) is var wanted && wanted == CadAcadVersion.None
            ? drawing.Version
            : wanted;
        List<string> changes = [];
        DrawingIntegrity.VerifyPlaces(drawing);
        CadDrawing written = ReleaseConversion.IsNeeded(drawing, version)
            ? ReleaseConversion.Convert(drawing, version, createMeasurer, changes)
            : drawing;
        DrawingIntegrity.Prepare(written, DrawingRelease.Year(version));
        DxfSaver saver = new(written, version, stream);
        saver.Write();
        return [.. changes, .. saver._objects.LeftOut];
    }

    private static Encoding EncodingOf(CadDrawing drawing, CadAcadVersion version)
    {
        string page = drawing.Header.CodePage;
        return version >= CadAcadVersion.AC1021
            ? new UTF8Encoding(false)
            : DwgCodePage.Get(page.Length > 0 ? page : DwgCodePage.DefaultName);
    }

    private static BinaryLayout LayoutOf(CadDrawing drawing, int release)
    {
        BinaryLayout binary = release < WithWordCodes ? BinaryLayout.ByteCodes : BinaryLayout.WordCodes;
        return drawing.IsBinary ? binary : BinaryLayout.None;
    }

    private void Write()
    {
        _writer.Begin();
        WriteHeader();
        if (_writer.HasSubclasses)
        {
            WriteClasses();
        }

        WriteTables();
        WriteBlocks();
        WriteEntities();
        if (_writer.HasSubclasses)
        {
            WriteObjects();
        }

        WriteAcdsData();
        foreach (RawSection section in _drawing.RawSections)
        {
            WriteRawSection(section);
        }

        WriteThumbnail();
        _writer.Write(0, "EOF");
        _writer.Flush();
    }

    private void BeginSection(string name)
    {
        _writer.Write(0, "SECTION");
        _writer.Write(2, name);
    }

    private void EndSection() => _writer.Write(0, "ENDSEC");

    private void WriteHeader()
    {
        const string release = "$ACADVER";
        BeginSection("HEADER");
        if (_version != CadAcadVersion.None)
        {
            // The release comes first: how the rest is read depends on it.
            _writer.Write(9, release);
            _writer.Write(1, _version.ToString());
        }

        foreach (string name in _drawing.Header.VariableNames)
        {
            if (HeaderVariables.Since(name) > _writer.Release || (name == release && _version != CadAcadVersion.None))
            {
                continue;
            }

            _writer.Write(9, name);
            _drawing.Header.TagsOf(name).ForEach(_writer.Write);
        }

        EndSection();
    }

    private void WriteClasses()
    {
        DxfFieldWriter fields = new(_writer);
        BeginSection("CLASSES");
        foreach (CadClassEntity item in _drawing.ClassEntities)
        {
            _writer.Write(0, "CLASS");
            item.Exchange(fields);
        }

        EndSection();
    }

    private void WriteTables()
    {
        BeginSection("TABLES");
        foreach (string name in TableRecords.Names)
        {
            if (name == "BLOCK_RECORD" && !_writer.HasSubclasses)
            {
                continue;
            }

            IReadOnlyList<CadSymbolTableGroupCodes> records = TableRecords.Of(_drawing, name);
            _drawing.TableHeaders.TryGetValue(name, out CadTableHeader? header);
            if (header is null && records.Count == 0 && !_writer.HasSubclasses)
            {
                continue;
            }

            _objects.WriteTableHeader(header ?? new CadTableHeader { Name = name }, records.Count);
            foreach (CadSymbolTableGroupCodes record in records)
            {
                _objects.Write(record);
            }

            _writer.Write(0, "ENDTAB");
        }

        EndSection();
    }

    private void WriteBlocks()
    {
        BeginSection("BLOCKS");
        foreach (CadBlockEntity block in _drawing.BlockEntities)
        {
            bool model = block == _drawing.ModelSpace;
            bool paper = block == _drawing.PaperSpace;
            if (!_writer.HasSubclasses
                && ((model && !_drawing.ModelSpaceInFile) || (paper && !_drawing.PaperSpaceInFile)))
            {
                continue;
            }

            _objects.Write(block);
            if (!model && !paper)
            {
                block.Entities.ForEach(_objects.WriteEntity);
            }

            _objects.Write(block.End);
        }

        EndSection();
    }

    private void WriteEntities()
    {
        BeginSection("ENTITIES");
        _drawing.ModelSpace.Entities.ForEach(_objects.WriteEntity);
        _drawing.PaperSpace.Entities.ForEach(_objects.WriteEntity);
        EndSection();
    }

    private void WriteObjects()
    {
        BeginSection("OBJECTS");
        _drawing.Objects.ForEach(_objects.Write);
        EndSection();
    }

    // The data section came with release 2013.
    private void WriteAcdsData()
    {
        CadAcdsData section = _drawing.AcdsData;
        if (_writer.Release < ModelerSection.Since)
        {
            return;
        }

        List<CadBaseAcds> items = ModelerSection.ItemsOf(_drawing);
        if (!section.IsInFile && items.Count == 0)
        {
            return;
        }

        BeginSection("ACDSDATA");
        (section.Header.Count > 0 ? section.Header : ModelerSection.HeaderFor(items)).ForEach(_writer.Write);
        items.ForEach(_objects.Write);

        EndSection();
    }

    private void WriteRawSection(RawSection section)
    {
        if (section.Content is not KeptTags content)
        {
            _objects.LeftOut.Add($"section {section.Name}: data kept in the form of {section.Content.FormatName}");
            return;
        }

        BeginSection(section.Name);
        content.Tags.ForEach(tag => _writer.Write(tag.Value));
        EndSection();
    }

    private void WriteThumbnail()
    {
        byte[] image = _drawing.ThumbnailImage;
        if (image.Length == 0)
        {
            return;
        }

        BeginSection("THUMBNAILIMAGE");
        _writer.Write(90, image.Length);
        for (int start = 0; start < image.Length; start += BitmapChunk)
        {
            int length = Math.Min(BitmapChunk, image.Length - start);
            _writer.Write(310, Convert.ToHexString(image, start, length));
        }

        EndSection();
    }
}
