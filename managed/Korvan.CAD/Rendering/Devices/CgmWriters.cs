using System;
using System.Buffers.Binary;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.Rendering.DisplayList;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>An element of a metafile: class and number in the binary form, the word in clear text.</summary>
internal readonly record struct CgmElement(int Class, int Number, string Word)
{
    internal static readonly CgmElement BeginMetafile = new(0, 1, "BEGMF");
    internal static readonly CgmElement EndMetafile = new(0, 2, "ENDMF");
    internal static readonly CgmElement BeginPicture = new(0, 3, "BEGPIC");
    internal static readonly CgmElement BeginPictureBody = new(0, 4, "BEGPICBODY");
    internal static readonly CgmElement EndPicture = new(0, 5, "ENDPIC");
    internal static readonly CgmElement Version = new(1, 1, "MFVERSION");
    internal static readonly CgmElement Description = new(1, 2, "MFDESC");
    internal static readonly CgmElement VdcType = new(1, 3, "VDCTYPE");
    internal static readonly CgmElement RealPrecision = new(1, 5, "REALPREC");
    internal static readonly CgmElement Elements = new(1, 11, "MFELEMLIST");
    internal static readonly CgmElement FontList = new(1, 13, "FONTLIST");
    internal static readonly CgmElement ScaleMode = new(2, 1, "SCALEMODE");
    internal static readonly CgmElement ColorMode = new(2, 2, "COLRMODE");
    internal static readonly CgmElement LineWidthMode = new(2, 3, "LINEWIDTHMODE");
    internal static readonly CgmElement VdcExtent = new(2, 6, "VDCEXT");
    internal static readonly CgmElement Background = new(2, 7, "BACKCOLR");
    internal static readonly CgmElement ClipRectangle = new(3, 5, "CLIPRECT");
    internal static readonly CgmElement Clip = new(3, 6, "CLIP");
    internal static readonly CgmElement Line = new(4, 1, "LINE");
    internal static readonly CgmElement RestrictedText = new(4, 5, "RESTRTEXT");
    internal static readonly CgmElement PolygonSet = new(4, 8, "POLYGONSET");
    internal static readonly CgmElement CellArray = new(4, 9, "CELLARRAY");
    internal static readonly CgmElement LineWidth = new(5, 3, "LINEWIDTH");
    internal static readonly CgmElement LineColor = new(5, 4, "LINECOLR");
    internal static readonly CgmElement TextFont = new(5, 10, "TEXTFONTINDEX");
    internal static readonly CgmElement TextColor = new(5, 14, "TEXTCOLR");
    internal static readonly CgmElement CharacterHeight = new(5, 15, "CHARHEIGHT");
    internal static readonly CgmElement CharacterOrientation = new(5, 16, "CHARORI");
    internal static readonly CgmElement InteriorStyle = new(5, 22, "INTSTYLE");
    internal static readonly CgmElement FillColor = new(5, 23, "FILLCOLR");
    internal static readonly CgmElement LineCap = new(5, 37, "LINECAP");
    internal static readonly CgmElement LineJoin = new(5, 38, "LINEJOIN");
}

/// <summary>Writes elements and their parameters, in one of the encodings of ISO/IEC 8632.</summary>
internal abstract class CgmWriter
{
    internal abstract void Begin(CgmElement element);

    internal abstract void End();

    internal abstract void Integer(int value);

    internal abstract void Enumeration(int value, string word);

    internal abstract void Real(double value);

    internal abstract void Point(int x, int y);

    internal abstract void Color(Rgba color);

    internal abstract void String(string value);

    /// <summary>Pixels of three bytes, red first, line by line.</summary>
    internal abstract void Cells(byte[] pixels, int width, int height);

    internal abstract void CopyTo(Stream output);

    /// <summary>A number of the coordinate system, where it stands alone.</summary>
    internal void Length(int value) => Integer(value);

    internal static bool CanEncode(string text)
    {
        foreach (char letter in text)
        {
            if (letter > 0xFF)
            {
                return false;
            }
        }

        return true;
    }
}

/// <summary>The binary encoding (ISO/IEC 8632-3): a head of class, number and length, then words, the high byte first.</summary>
internal sealed class CgmBinaryWriter : CgmWriter
{
    private const int ShortLength = 31;
    private const int LongestPart = 32_766;

    private readonly MemoryStream _content = new();
    private readonly MemoryStream _parameters = new();
    private readonly byte[] _bytes = new byte[4];
    private CgmElement _element;

    internal override void Begin(CgmElement element) => _element = element;

    internal override void End()
    {
        ReadOnlySpan<byte> data = _parameters.GetBuffer().AsSpan(0, (int)_parameters.Length);
        int head = (_element.Class << 12) | (_element.Number << 5);
        if (data.Length < ShortLength)
        {
            Word(_content, head | data.Length);
            Padded(data);
        }
        else
        {
            // The highest bit of a length says that another part follows.
            Word(_content, head | ShortLength);
            while (data.Length > 0)
            {
                int part = Math.Min(data.Length, LongestPart);
                Word(_content, part | (data.Length > part ? 0x8000 : 0));
                Padded(data[..part]);
                data = data[part..];
            }
        }

        _parameters.SetLength(0);
    }

    internal override void Integer(int value) => Word(_parameters, value);

    internal override void Enumeration(int value, string word) => Word(_parameters, value);

    internal override void Real(double value)
    {
        BinaryPrimitives.WriteSingleBigEndian(_bytes, (float)value);
        _parameters.Write(_bytes);
    }

    internal override void Point(int x, int y)
    {
        Word(_parameters, x);
        Word(_parameters, y);
    }

    internal override void Color(Rgba color) => _parameters.Write([color.R, color.G, color.B]);

    internal override void String(string value)
    {
        byte[] letters = Encoding.Latin1.GetBytes(value);
        if (letters.Length >= 255)
        {
            _parameters.WriteByte(255);
            Word(_parameters, Math.Min(letters.Length, 0x7FFF));
        }
        else
        {
            _parameters.WriteByte((byte)letters.Length);
        }

        _parameters.Write(letters, 0, Math.Min(letters.Length, 0x7FFF));
    }

    internal override void Cells(byte[] pixels, int width, int height)
    {
        // Packed: each line fills whole words.
        Word(_parameters, 1);
        for (int y = 0; y < height; y++)
        {
            _parameters.Write(pixels, y * width * 3, width * 3);
            if (width % 2 == 1)
            {
                _parameters.WriteByte(0);
            }
        }
    }

    internal override void CopyTo(Stream output)
    {
        _content.Position = 0;
        _content.CopyTo(output);
    }

    private void Padded(ReadOnlySpan<byte> data)
    {
        _content.Write(data);
        if (data.Length % 2 == 1)
        {
            _content.WriteByte(0);
        }
    }

    private void Word(Stream target, int value)
    {
        BinaryPrimitives.WriteInt16BigEndian(_bytes, (short)value);
        target.Write(_bytes, 0, 2);
    }
}

/// <summary>The clear text encoding (ISO/IEC 8632-4): a word and its parameters, ended by a semicolon.</summary>
internal sealed class CgmTextWriter : CgmWriter
{
    private readonly MemoryStream _content = new();
    private readonly StreamWriter _writer;

    internal CgmTextWriter()
    {
        _writer = new StreamWriter(_content, Encoding.Latin1) { NewLine = "\n" };
    }

    internal override void Begin(CgmElement element) => _writer.Write(element.Word);

    internal override void End() => _writer.WriteLine(';');

    internal override void Integer(int value) => _writer.Write(string.Create(CultureInfo.InvariantCulture, $" {value}"));

    internal override void Enumeration(int value, string word) => _writer.Write(" " + word);

    internal override void Real(double value) => _writer.Write(" " + value.ToString("0.0#######", CultureInfo.InvariantCulture));

    internal override void Point(int x, int y) => _writer.Write(string.Create(CultureInfo.InvariantCulture, $" ({x},{y})"));

    internal override void Color(Rgba color) => _writer.Write($" {color.R} {color.G} {color.B}");

    internal override void String(string value) => _writer.Write($" '{value.Replace("'", "''", StringComparison.Ordinal)}'");

    internal override void Cells(byte[] pixels, int width, int height)
    {
        for (int i = 0; i < pixels.Length; i += 3)
        {
            _writer.Write($"{(i % (width * 3) == 0 ? "\n" : "")} {pixels[i]} {pixels[i + 1]} {pixels[i + 2]}");
        }
    }

    internal override void CopyTo(Stream output)
    {
        _writer.Flush();
        _content.Position = 0;
        _content.CopyTo(output);
    }
}
