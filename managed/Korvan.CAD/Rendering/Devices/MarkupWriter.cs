using System;
using System.Buffers.Text;
using System.Globalization;
using System.IO;
using System.Text;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Writes XML as UTF-8 through one buffer, without a string for each number.</summary>
internal sealed class MarkupWriter(Stream output)
{
    /// <summary>The parts of a unit that numbers are rounded to.</summary>
    internal const int Parts = 1000;

    private const int BufferSize = 64 * 1024;
    private const int LongestNumber = 32;
    private const double MaxNumber = 1e15;

    private readonly byte[] _buffer = new byte[BufferSize];
    private int _used;

    internal void Raw(ReadOnlySpan<byte> text)
    {
        if (text.Length > BufferSize - _used)
        {
            Flush();
            if (text.Length > BufferSize)
            {
                output.Write(text);
                return;
            }
        }

        text.CopyTo(_buffer.AsSpan(_used));
        _used += text.Length;
    }

    internal void Raw(byte character)
    {
        Reserve(1);
        _buffer[_used++] = character;
    }

    /// <summary>Writes a string that has no markup in it.</summary>
    internal void Text(string text)
    {
        const int longestCharacter = 3;
        for (int at = 0; at < text.Length;)
        {
            int count = Math.Min(text.Length - at, BufferSize / longestCharacter);
            count -= at + count < text.Length && char.IsHighSurrogate(text[at + count - 1]) ? 1 : 0;
            Reserve(count * longestCharacter);
            _used += Encoding.UTF8.GetBytes(text.AsSpan(at, count), _buffer.AsSpan(_used));
            at += count;
        }
    }

    /// <summary>Writes a string as content or as the value of an attribute. What XML cannot hold is left out: control
    /// characters, surrogates without their other half, and the two last code points of the first plane.</summary>
    internal void Escaped(string text)
    {
        const int longestRune = 4;
        foreach (Rune rune in new RuneSequence(text))
        {
            switch (rune.Value)
            {
                case '<':
                    Raw("&lt;"u8);
                    break;
                case '>':
                    Raw("&gt;"u8);
                    break;
                case '&':
                    Raw("&amp;"u8);
                    break;
                case '"':
                    Raw("&quot;"u8);
                    break;
                case < ' ' or 0xfffe or 0xffff:
                    break;
                default:
                    Reserve(longestRune);
                    _used += rune.EncodeToUtf8(_buffer.AsSpan(_used));
                    break;
            }
        }
    }

    /// <summary>Writes a number of thousandths with at most three digits after the point, and none that are not
    /// needed.</summary>
    internal void Thousandths(long value)
    {
        Reserve(LongestNumber);
        if (value < 0)
        {
            _buffer[_used++] = (byte)'-';
            value = -value;
        }

        (long whole, long rest) = Math.DivRem(value, Parts);
        if (whole > 0 || rest == 0)
        {
            Integer(whole);
        }

        if (rest > 0)
        {
            _buffer[_used++] = (byte)'.';
            Fraction((int)rest);
        }
    }

    internal void Number(double value) => Thousandths(ToThousandths(value));

    /// <summary>Writes a number with nine significant digits, for the factors of a transform.</summary>
    internal void Exact(double value)
    {
        Reserve(LongestNumber);
        value.TryFormat(_buffer.AsSpan(_used), out int written, "G9", CultureInfo.InvariantCulture);
        _used += written;
    }

    /// <summary>Writes a transform.</summary>
    internal void Matrix(in Affine2 m)
    {
        Raw("matrix("u8);
        Exact(m.Xx);
        Next(m.Yx);
        Next(m.Xy);
        Next(m.Yy);
        Next(m.X0);
        Next(m.Y0);
        Raw((byte)')');

        void Next(double factor)
        {
            Raw((byte)' ');
            Exact(factor);
        }
    }

    internal void Color(Rgba color)
    {
        ReadOnlySpan<byte> digits = "0123456789abcdef"u8;
        Reserve(LongestNumber);
        Span<byte> target = _buffer.AsSpan(_used, 7);
        target[0] = (byte)'#';
        (target[1], target[2]) = (digits[color.R >> 4], digits[color.R & 15]);
        (target[3], target[4]) = (digits[color.G >> 4], digits[color.G & 15]);
        (target[5], target[6]) = (digits[color.B >> 4], digits[color.B & 15]);
        _used += target.Length;
    }

    internal void Flush()
    {
        int count = _used;
        _used = 0;
        output.Write(_buffer, 0, count);
    }

    /// <summary>Returns a number in thousandths; what is not finite or too large ends at a limit.</summary>
    internal static long ToThousandths(double value) =>
        double.IsNaN(value) ? 0 : (long)Math.Round(Math.Clamp(value, -MaxNumber, MaxNumber) * Parts);

    private void Integer(long value)
    {
        if (value < 10)
        {
            _buffer[_used++] = (byte)('0' + value);
            return;
        }

        Utf8Formatter.TryFormat(value, _buffer.AsSpan(_used), out int written);
        _used += written;
    }

    private void Fraction(int rest)
    {
        (int tenths, rest) = Math.DivRem(rest, 100);
        _buffer[_used++] = (byte)('0' + tenths);
        if (rest == 0)
        {
            return;
        }

        (int hundredths, rest) = Math.DivRem(rest, 10);
        _buffer[_used++] = (byte)('0' + hundredths);
        if (rest > 0)
        {
            _buffer[_used++] = (byte)('0' + rest);
        }
    }

    private void Reserve(int count)
    {
        if (count > BufferSize - _used)
        {
            Flush();
        }
    }

    /// <summary>The code points of a string without surrogates that stand alone.</summary>
    private readonly ref struct RuneSequence(string text)
    {
        public Enumerator GetEnumerator() => new(text);

        internal ref struct Enumerator(string text)
        {
            private int _at;

            public Rune Current { get; private set; }

            public bool MoveNext()
            {
                while (_at < text.Length)
                {
                    if (Rune.TryGetRuneAt(text, _at, out Rune rune))
                    {
                        _at += rune.Utf16SequenceLength;
                        Current = rune;
                        return true;
                    }

                    _at++;
                }

                return false;
            }
        }
    }
}
