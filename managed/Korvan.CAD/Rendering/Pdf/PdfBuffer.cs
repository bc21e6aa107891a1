using System;
using System.Globalization;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>Bytes of PDF syntax (ISO 32000-1, 7.3) under construction. Numbers are written without strings.</summary>
internal sealed class PdfBuffer
{
    private const int MaxDecimals = 9;
    private const int SignificantDigits = 6;
    private const int LongestNumber = 32;

    private static readonly long[] Powers =
        [1, 10, 100, 1_000, 10_000, 100_000, 1_000_000, 10_000_000, 100_000_000, 1_000_000_000];

    private byte[] _bytes = new byte[1024];

    /// <summary>Gets the number of bytes.</summary>
    internal int Count { get; private set; }

    internal ReadOnlySpan<byte> Bytes => _bytes.AsSpan(0, Count);

    internal void Clear() => Count = 0;

    /// <summary>Empties the buffer, and returns it.</summary>
    internal PdfBuffer Cleared()
    {
        Count = 0;
        return this;
    }

    internal PdfBuffer Raw(ReadOnlySpan<byte> bytes)
    {
        bytes.CopyTo(Room(bytes.Length));
        Count += bytes.Length;
        return this;
    }

    internal PdfBuffer Raw(byte value)
    {
        Room(1)[0] = value;
        Count++;
        return this;
    }

    /// <summary>Adds characters, all of which are in ASCII.</summary>
    internal PdfBuffer Ascii(string text)
    {
        Count += Encoding.ASCII.GetBytes(text, Room(text.Length));
        return this;
    }

    internal PdfBuffer Int(long value)
    {
        value.TryFormat(Room(LongestNumber), out int written, default, CultureInfo.InvariantCulture);
        Count += written;
        return this;
    }

    /// <summary>Adds a reference to an object.</summary>
    internal PdfBuffer Ref(int number) => Int(number).Raw(" 0 R"u8);

    /// <summary>Adds a number that is given in units of its last decimal, without zeros at its end.</summary>
    internal PdfBuffer Fixed(long scaled, int decimals)
    {
        Span<byte> room = Room(LongestNumber);
        int at = 0;
        ulong value = (ulong)scaled;
        if (scaled < 0)
        {
            room[at++] = (byte)'-';
            value = (ulong)-scaled;
        }

        ulong power = (ulong)Powers[decimals];
        ulong whole = value / power;
        var part = (uint)(value - (whole * power));
        if (whole != 0 || part == 0)
        {
            at += Digits(whole, room[at..]);
        }

        if (part != 0)
        {
            while (part % 10 == 0)
            {
                part /= 10;
                decimals--;
            }

            room[at] = (byte)'.';
            for (int i = decimals; i > 0; i--, part /= 10)
            {
                room[at + i] = (byte)('0' + (part % 10));
            }

            at += decimals + 1;
        }

        Count += at;
        return this;
    }

    /// <summary>Adds a number with six significant digits.</summary>
    internal PdfBuffer Real(double value)
    {
        if (value == 0 || !double.IsFinite(value))
        {
            return Raw((byte)'0');
        }

        int magnitude = (int)Math.Floor(Math.Log10(Math.Abs(value)));
        int decimals = Math.Clamp(SignificantDigits - 1 - magnitude, 0, MaxDecimals);
        return Fixed((long)Math.Round(Math.Clamp(value, -9e15, 9e15) * Powers[decimals]), decimals);
    }

    /// <summary>Adds the six numbers of a matrix, each followed by a space.</summary>
    internal PdfBuffer Matrix(in Affine2 m) => Real(m.Xx).Raw((byte)' ').Real(m.Yx).Raw((byte)' ').Real(m.Xy)
        .Raw((byte)' ').Real(m.Yy).Raw((byte)' ').Real(m.X0).Raw((byte)' ').Real(m.Y0).Raw((byte)' ');

    /// <summary>Adds the parts of a colour, each followed by a space: one where it is grey, else three.</summary>
    internal PdfBuffer Color(Rgba color)
    {
        Fixed(Part(color.R), 3).Raw((byte)' ');
        return color.R == color.G && color.G == color.B
            ? this
            : Fixed(Part(color.G), 3).Raw((byte)' ').Fixed(Part(color.B), 3).Raw((byte)' ');
    }

    /// <summary>Adds the three parts of a colour, each followed by a space.</summary>
    internal PdfBuffer Rgb(Rgba color) => Fixed(Part(color.R), 3).Raw((byte)' ').Fixed(Part(color.G), 3)
        .Raw((byte)' ').Fixed(Part(color.B), 3).Raw((byte)' ');

    /// <summary>A part of a colour in thousandths.</summary>
    internal static long Part(byte value) => ((value * 1000) + 127) / 255;

    /// <summary>Adds a name; characters that are not regular are written by their numbers.</summary>
    internal PdfBuffer Name(string text)
    {
        Raw((byte)'/');
        Span<byte> utf8 = stackalloc byte[4];
        foreach (Rune rune in text.EnumerateRunes())
        {
            int length = rune.EncodeToUtf8(utf8);
            foreach (byte one in utf8[..length])
            {
                bool regular = one is > (byte)' ' and < 0x7F && "()<>[]{}/%#"u8.IndexOf(one) < 0;
                _ = regular ? Raw(one) : Raw((byte)'#').Hex(one);
            }
        }

        return this;
    }

    /// <summary>Adds a text string: as it is where all characters are printable ASCII, else as UTF-16.</summary>
    internal PdfBuffer Text(string text)
    {
        foreach (char one in text)
        {
            if (one is < ' ' or > '~')
            {
                return HexText(text);
            }
        }

        Raw((byte)'(');
        foreach (char one in text)
        {
            if (one is '(' or ')' or '\\')
            {
                Raw((byte)'\\');
            }

            Raw((byte)one);
        }

        return Raw((byte)')');
    }

    /// <summary>Adds a text string as UTF-16 in hexadecimal digits.</summary>
    internal PdfBuffer HexText(string text)
    {
        Raw("<FEFF"u8);
        return HexCharacters(text).Raw((byte)'>');
    }

    /// <summary>Adds the UTF-16 of a text in hexadecimal digits.</summary>
    internal PdfBuffer HexCharacters(string text)
    {
        foreach (char one in text)
        {
            Hex((byte)(one >> 8)).Hex((byte)one);
        }

        return this;
    }

    internal PdfBuffer Hex(byte value)
    {
        ReadOnlySpan<byte> digits = "0123456789ABCDEF"u8;
        Span<byte> room = Room(2);
        room[0] = digits[value >> 4];
        room[1] = digits[value & 15];
        Count += 2;
        return this;
    }

    /// <summary>Adds a space in place of bytes that are written later, and returns where it starts.</summary>
    internal int Reserve(int length, byte fill)
    {
        int start = Count;
        Room(length)[..length].Fill(fill);
        Count += length;
        return start;
    }

    private static int Digits(ulong value, Span<byte> target)
    {
        int count = 1;
        for (ulong rest = value; rest >= 10; rest /= 10)
        {
            count++;
        }

        for (int i = count - 1; i >= 0; i--, value /= 10)
        {
            target[i] = (byte)('0' + (value % 10));
        }

        return count;
    }

    private Span<byte> Room(int length)
    {
        if (_bytes.Length - Count < length)
        {
            Array.Resize(ref _bytes, Math.Max(_bytes.Length * 2, Count + length));
        }

        return _bytes.AsSpan(Count);
    }
}
