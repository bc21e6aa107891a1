using System.Collections.Generic;
using System.Text;
using Korvan.CAD.CadExceptions;
using Korvan.CAD.Encodings;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Input;

namespace Korvan.CAD.FileFormats.Cad.Dxf;

/// <summary>Reads interchange files: the sections, and what they hold.</summary>
internal sealed partial class DxfReader
{
    private readonly DxfTagReader _tags;
    private readonly DxfObjectReader _objects;
    private readonly LoadOptions _options;
    private readonly CadDrawing _drawing = new(DrawingSeed.Blank);
    private bool _hasEntities;

    internal DxfReader(SourceWindow source, LoadOptions options)
    {
        _tags = new DxfTagReader(source) { Repaired = options.Report };
        _objects = new DxfObjectReader(_tags);
        _options = options;
        if (options.SpecifiedMifEncoding != MifCodePages.Undefined || options.RecoverMalformedCifMif)
        {
            _tags.Escapes = new TextEscapes(options.SpecifiedMifEncoding, options.RecoverMalformedCifMif);
        }

        if (options.SpecifiedEncoding != CodePages.Default)
        {
            _tags.Encoding = DwgCodePage.Get((int)options.SpecifiedEncoding);
        }
    }

    internal CadDrawing Read()
    {
        try
        {
            ReadSections();
        }
        catch (ImageLoadException e) when (_options.IgnoreErrors)
        {
            _options.Report(e);
        }
        finally
        {
            _tags.Release();
        }

        DrawingLinks.Complete(_drawing);
        ModelerSection.Attach(_drawing);
        _drawing.IsBinary = _tags.IsBinary;
        _drawing.ContentRelease = _drawing.Version;
        return _drawing;
    }

    private void ReadSections()
    {
        while (_tags.Next())
        {
            if (_tags.Code == 9)
            {
                // Some programs close the section of variables too early.
                ReadVariables();
            }
            else if (_tags.Code == 0 && _tags.ValueIs("EOF"u8))
            {
                return;
            }
            else if (_tags.Code == 0 && _tags.ValueIs("SECTION"u8))
            {
                ReadSection();
            }
            else if (_tags.Code != 0 || !_tags.ValueIs("ENDSEC"u8))
            {
                throw _tags.Fail(
                LoadDefectCode.Misplaced,
                $"group code {_tags.Code} with the value '{_tags.ValueText()}' stands between "
                    + "sections; 0 SECTION or 0 EOF was expected");
            }
        }

        if (!_hasEntities)
        {
            throw _tags.Fail(
                LoadDefectCode.EndsEarly,
                "the file ends before its section ENTITIES; it has been cut off");
        }
    }

    private void ReadSection()
    {
        int line = _tags.Line;
        if (!_tags.Next() || _tags.Code != 2)
        {
            throw _tags.Fail(
                LoadDefectCode.SectionWithoutName, "a section has no name; group code 2 was expected");
        }

        string name = _tags.GetName();
        switch (name)
        {
            case "HEADER":
                ReadHeader();
                break;
            case "CLASSES":
                ReadClasses();
                break;
            case "TABLES":
                ReadTables();
                break;
            case "BLOCKS":
                ReadBlocks();
                break;
            case "ENTITIES":
                ReadEntities();
                _hasEntities = true;
                break;
            case "OBJECTS":
                ReadObjects();
                break;
            case "ACDSDATA":
                ReadAcdsData();
                break;
            case "THUMBNAILIMAGE":
                ReadThumbnail();
                break;
            default:
                ReadRawSection(name);
                break;
        }

        VerifyEnd(name, line);
    }

    private void VerifyEnd(string name, int line)
    {
        if (!_tags.Next())
        {
            throw _tags.Fail(
                LoadDefectCode.SectionWithoutEnd,
                $"the section {name}, which begins on line {line}, never ends; 0 ENDSEC was expected");
        }

        if (_tags.Code != 0 || !_tags.ValueIs("ENDSEC"u8))
        {
            throw _tags.Fail(
                LoadDefectCode.Misplaced,
                $"group code {_tags.Code} with the value '{_tags.ValueText()}' stands in the section "
                + $"{name}, where 0 ENDSEC was expected");
        }
    }

    /// <summary>Goes on to the next object of a section.</summary>
    /// <returns>Its name, or nothing at the end of the section.</returns>
    private string? NextObject()
    {
        while (_tags.Next())
        {
            if (_tags.Code != 0)
            {
                throw _tags.Fail(
                LoadDefectCode.Misplaced,
                $"group code {_tags.Code} stands where group code 0 and the name of an object were "
                    + "expected");
            }

            string name = _tags.GetName();
            if (name is "ENDSEC" or "EOF" or "SECTION")
            {
                _tags.Unread();
                return null;
            }

            return name;
        }

        return null;
    }

    private void ReadHeader()
    {
        if (_tags.Next())
        {
            ReadVariables();
        }
    }

    /// <summary>Reads variables from the current tag on.</summary>
    private void ReadVariables()
    {
        _tags.Unread();
        ChooseEncoding();
        List<CadCodeValue>? values = null;
        for (bool more = _tags.Next(); more && _tags.Code != 0; more = _tags.Next())
        {
            if (_tags.Code == 9)
            {
                values = _drawing.Header.TagsOf(_tags.GetName());
                values.Clear();
            }
            else if (values is not null)
            {
                values.Add(_tags.ToCodeValue());
            }
        }

        _tags.Unread();
    }

    // Release and code page hold for all variables, those before them included.
    private void ChooseEncoding()
    {
        if (_options.SpecifiedEncoding != CodePages.Default)
        {
            return;
        }

        string release = _drawing.Header.AcadVersion.ToString();
        string page = "";
        string variable = "";
        _tags.LookAhead(() =>
        {
            string text = _tags.Code == 9 || variable is "$ACADVER" or "$DWGCODEPAGE" ? _tags.GetName() : "";
            variable = _tags.Code == 9 ? text : variable;
            release = variable == "$ACADVER" ? text : release;
            page = variable == "$DWGCODEPAGE" ? text : page;
            return true;
        });
        bool isStated = page.Length > 0 && !page.StartsWith('$');
        Encoding stated = DwgCodePage.Get(isStated ? page : DwgCodePage.DefaultName);

        // Programs that state no code page write the default one or UTF-8; hardly a text is both.
        bool unicode = DrawingRelease.Parse(release) >= CadAcadVersion.AC1021 || !isStated;
        _tags.Encoding = unicode ? new UTF8Encoding(false) : stated;
        _tags.Fallback = stated;
    }

    private void ReadClasses()
    {
        while (NextObject() is not null)
        {
            CadClassEntity added = new();
            while (_tags.Next() && _tags.Code != 0)
            {
                if (!added.ReadField(_tags.Code, _tags))
                {
                    added.Kept.Add(_tags.ToCodeValue());
                }
            }

            _tags.Unread();
            _drawing.ClassEntities.Add(added);
        }
    }

    private void ReadThumbnail()
    {
        List<byte[]> chunks = [];
        while (_tags.Next() && _tags.Code != 0)
        {
            if (_tags.Code == 310)
            {
                chunks.Add(_tags.AppendBinary([]));
            }
        }

        _tags.Unread();
        byte[] image = new byte[TotalLength(chunks)];
        int position = 0;
        foreach (byte[] chunk in chunks)
        {
            chunk.CopyTo(image, position);
            position += chunk.Length;
        }

        _drawing.ThumbnailImage = image;
    }

    private static int TotalLength(List<byte[]> chunks)
    {
        int length = 0;
        foreach (byte[] chunk in chunks)
        {
            length += chunk.Length;
        }

        return length;
    }

    private void ReadRawSection(string name)
    {
        KeptTags content = new();
        while (_tags.Next() && !(_tags.Code == 0 && (_tags.ValueIs("ENDSEC"u8) || _tags.ValueIs("EOF"u8))))
        {
            content.Tags.Add(new KeptTag(null, _tags.ToCodeValue()));
        }

        _tags.Unread();
        _drawing.RawSections.Add(new RawSection(name) { Content = content });
    }
}
