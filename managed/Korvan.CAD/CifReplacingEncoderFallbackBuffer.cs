using System;
using System.Text;

namespace Korvan.CAD;

/// <summary>The buffer of <see cref="CifReplacingEncoderFallback"/>: returns the characters of <c>\U+XXXX</c> for a
/// character that the encoding lacks.</summary>
public class CifReplacingEncoderFallbackBuffer : EncoderFallbackBuffer
{
    /// <summary>The number of characters in a sequence.</summary>
    internal const int SequenceLength = 7;

    private readonly char[] _text = new char[2 * SequenceLength];
    private int _length;
    private int _next;

    /// <summary>Creates an empty buffer.</summary>
    public CifReplacingEncoderFallbackBuffer()
    {
    }

    /// <summary>Gets the number of remaining characters.</summary>
    public override int Remaining => _length - _next;

    /// <summary>Prepares the sequence for a character of the Basic Multilingual Plane.</summary>
    /// <param name="charUnknown">The character that cannot be encoded.</param>
    /// <param name="index">Its index in the string.</param>
    /// <returns>True: there is a replacement.</returns>
    public override bool Fallback(char charUnknown, int index)
    {
        _next = 0;
        _length = Write(charUnknown, 0);
        return true;
    }

    /// <summary>Prepares the sequences for a character outside of the Basic Multilingual Plane.</summary>
    /// <param name="charUnknownHigh">Its high surrogate.</param>
    /// <param name="charUnknownLow">Its low surrogate.</param>
    /// <param name="index">Its index in the string.</param>
    /// <returns>True: there is a replacement.</returns>
    public override bool Fallback(char charUnknownHigh, char charUnknownLow, int index)
    {
        _next = 0;
        _length = Write(charUnknownLow, Write(charUnknownHigh, 0));
        return true;
    }

    /// <summary>Returns the next character; the null character if none is left.</summary>
    /// <returns>The next character.</returns>
    public override char GetNextChar() => _next < _length ? _text[_next++] : '\0';

    /// <summary>Moves back by one character.</summary>
    /// <returns>Whether there was a previous one.</returns>
    public override bool MovePrevious()
    {
        if (_next == 0)
        {
            return false;
        }

        _next--;
        return true;
    }

    /// <summary>Discards the remaining characters.</summary>
    public override void Reset()
    {
        _next = 0;
        _length = 0;
    }

    private int Write(char unit, int at)
    {
        ReadOnlySpan<char> digits = "0123456789ABCDEF";
        "\\U+".CopyTo(_text.AsSpan(at));
        for (int i = 0; i < 4; i++)
        {
            _text[at + 3 + i] = digits[(unit >> (12 - (4 * i))) & 15];
        }

        return at + SequenceLength;
    }
}
