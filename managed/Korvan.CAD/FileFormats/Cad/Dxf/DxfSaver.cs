using System.Collections.Generic;
using System.IO;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Writes drawings as text interchange files.</summary>
internal sealed class DxfSaver
{
    private const int BitmapChunk = 127;

    private readonly CadDrawing _drawing;
    private readonly CadAcadVersion _version;
    private readonly DxfTagWriter _writer;
    private readonly DxfObjectWriter _objects;

    private DxfSaver(CadDrawing drawing, CadAcadVersion version, Stream stream)
    {
        _drawing = drawing;
        _version = version;
        bool unicode = version >= CadAcadVersion.AC1021;
        string page = drawing.Header.CodePage;
        Encoding encoding = unicode
            ? new UTF8Encoding(false)
            : DwgCodePage.Get(page.Length > 0 ? page : DwgCodePage.DefaultName);
        _writer = new DxfTagWriter(stream, encoding, DrawingRelease.Year(version));
        _objects = new DxfObjectWriter(_writer);
    }

    /// <summary>Writes a drawing.</summary>
    /// <returns>What was left out because it is kept in the form of another format.</returns>
    internal static IReadOnlyList<string> Save(CadDrawing drawing, DxfOptions options, Stream stream)
    {
        CadAcadVersion version = ChooseVersion(drawing, options.Version);
        DrawingIntegrity.Prepare(drawing, DrawingRelease.Year(version));
        DxfSaver saver = new(drawing, version, stream);
        saver.Write();
        return saver._objects.LeftOut;
    }

    private static CadAcadVersion ChooseVersion(CadDrawing drawing, DxfOutputVersion wanted)
    {
        CadAcadVersion present = drawing.Version;
        CadAcadVersion chosen = wanted == DxfOutputVersion.Original ? present : DxfRelease.From(wanted);
        if (DrawingRelease.Year(chosen) == DrawingRelease.Year(present))
        {
            return chosen == CadAcadVersion.None ? present : chosen;
        }

        if (present < CadAcadVersion.AC1015 || chosen < CadAcadVersion.AC1015)
        {
            throw new ImageSaveException($"A drawing of release {present} cannot be written as {chosen}: objects are "
                + "carried over between releases 2000 and later only. Leave DxfOptions.version at ORIGINAL.");
        }

        VerifySolids(drawing, chosen);
        return chosen;
    }

    // From release 2013 on the data of solids is in a section that earlier releases do not know.
    private static void VerifySolids(CadDrawing drawing, CadAcadVersion chosen)
    {
        if (chosen >= CadAcadVersion.AC1027)
        {
            return;
        }

        foreach (CadBlockEntity block in drawing.BlockEntities)
        {
            if (block.Entities.Exists(static entity => entity is CadObjectWithAcisData { AcisData.Count: 0 }))
            {
                throw new ImageSaveException("The drawing has solids in the form of release 2013, which release "
                    + $"{chosen} does not know. Write release 2013 or later.");
            }
        }
    }

    private void Write()
    {
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
        BeginSection("HEADER");
        foreach (string name in _drawing.Header.VariableNames)
        {
            if (HeaderVariables.Since(name) > _writer.Release)
            {
                continue;
            }

            _writer.Write(9, name);
            if (name == "$ACADVER")
            {
                _writer.Write(1, _version.ToString());
                continue;
            }

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
        if (_writer.Release < 2013 || !(section.IsInFile || section.Items.Count > 0))
        {
            return;
        }

        BeginSection("ACDSDATA");
        section.Header.ForEach(_writer.Write);
        foreach (CadBaseAcds item in section.Items)
        {
            _objects.Write(item);
        }

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
            int length = System.Math.Min(BitmapChunk, image.Length - start);
            _writer.Write(310, System.Convert.ToHexString(image, start, length));
        }

        EndSection();
    }
}
