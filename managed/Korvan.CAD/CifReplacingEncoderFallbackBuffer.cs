using System;
using System.Text;

namespace Korvan.CAD;

/// <summary>Gives the letters of <c>\U+XXXX</c> for a letter that an encoding lacks.</summary>
public class CifReplacingEncoderFallbackBuffer : EncoderFallbackBuffer
{
    /// <summary>The letters of one sequence.</summary>
    internal const int SequenceLength = 7;

    private readonly char[] _text = new char[2 * SequenceLength];
    private int _length;
    private int _next;

    /// <summary>Creates a buffer that has nothing to give.</summary>
    public CifReplacingEncoderFallbackBuffer()
    {
    }

    /// <summary>Gets how many letters are still to be given.</summary>
    public override int Remaining => _length - _next;

    /// <summary>Takes a letter of the basic plane that cannot be encoded.</summary>
    /// <param name="charUnknown">The letter.</param>
    /// <param name="index">Its place in the text.</param>
    /// <returns>True: there are letters to put in its place.</returns>
    public override bool Fallback(char charUnknown, int index)
    {
        _next = 0;
        _length = Write(charUnknown, 0);
        return true;
    }

    /// <summary>Takes a letter beyond the basic plane that cannot be encoded.</summary>
    /// <param name="charUnknownHigh">Its first UTF-16 unit.</param>
    /// <param name="charUnknownLow">Its second.</param>
    /// <param name="index">Its place in the text.</param>
    /// <returns>True: there are letters to put in its place.</returns>
    public override bool Fallback(char charUnknownHigh, char charUnknownLow, int index)
    {
        _next = 0;
        _length = Write(charUnknownLow, Write(charUnknownHigh, 0));
        return true;
    }

    /// <summary>Gives the next letter; the zero letter when none is left.</summary>
    /// <returns>The next letter.</returns>
    public override char GetNextChar() => _next < _length ? _text[_next++] : '\0';

    /// <summary>Goes back by one letter.</summary>
    /// <returns>Whether there was one.</returns>
    public override bool MovePrevious()
    {
        if (_next == 0)
        {
            return false;
        }

        _next--;
        return true;
    }

    /// <summary>Forgets what is still to be given.</summary>
    public override void Reset()
    {
        _next = 0;
        _length = 0;
    }

    private int Write(char letter, int at)
    {
        ReadOnlySpan<char> digits = "0123456789ABCDEF";
        "\\U+".CopyTo(_text.AsSpan(at));
        for (int i = 0; i < 4; i++)
        {
            _text[at + 3 + i] = digits[(letter >> (12 - (4 * i))) & 15];
        }

        return at + SequenceLength;
    }
}
