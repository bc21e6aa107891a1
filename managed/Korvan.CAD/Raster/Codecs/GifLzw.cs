using System;
using Korvan.CAD.Raster.Native;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>Decodes the pixels of a frame of a GIF (LZW with codes of 3 to 12 bits). A string of the table is a part of
/// what was decoded since the table was cleared, so that decoding is copying.</summary>
internal sealed unsafe class GifLzw
{
    /// <summary>The error of pixels that end too early, as the library numbers it.</summary>
    internal const int EndedTooEarly = 113;

    /// <summary>The error of invalid codes.</summary>
    internal const int Defect = 112;

    private const int MaxCodes = 4096;
    private const int NoCode = -1;
    private const int EnoughDecoded = 1 << 15;

    private readonly GifReadHandle _gif;
    private readonly int[] _starts = new int[MaxCodes];
    private readonly int[] _lengths = new int[MaxCodes];
    private readonly int _rootBits;

    // The first bytes are the strings of the roots. What is decoded while the table is full is not referred to.
    private byte[] _decoded = new byte[1 << 16];
    private int _first;
    private int _end;
    private int _referredEnd;

    private int _next;
    private int _codeBits;
    private int _last = NoCode;
    private int _lastStart;

    private byte* _block;
    private int _blockAt;
    private int _blockLength;
    private ulong _bits;
    private int _bitCount;
    private bool _isEnded;

    internal GifLzw(GifReadHandle gif)
    {
        _gif = gif;
        int bits;
        byte* block;
        Error = Gif.GetCode(gif, &bits, &block) == Gif.Ok ? 0 : gif.File.Error;
        if (Error != 0)
        {
            return;
        }

        if (bits is < 1 or > 8)
        {
            Error = Defect;
            return;
        }

        _rootBits = bits;
        SetBlock(block);
        for (int i = 0; i < 1 << bits; i++)
        {
            (_starts[i], _lengths[i], _decoded[i]) = (i, 1, (byte)i);
        }

        ClearTable();
        _first = _end;
    }

    /// <summary>Gets the error after which no pixels follow; 0 for none.</summary>
    internal int Error { get; private set; }

    private int ClearCode => 1 << _rootBits;

    /// <summary>Decodes a line; returns false if that is impossible.</summary>
    internal bool TryRead(Span<byte> line)
    {
        while (line.Length > 0)
        {
            if (_first == _end && !TryDecode())
            {
                return false;
            }

            int count = Math.Min(line.Length, _end - _first);
            _decoded.AsSpan(_first, count).CopyTo(line);
            line = line[count..];
            _first += count;
        }

        return true;
    }

    /// <summary>Skips what follows the last line.</summary>
    internal bool TryFinish()
    {
        while (_block != null && TryNextBlock())
        {
        }

        return Error == 0;
    }

    private bool TryDecode()
    {
        if (_next == MaxCodes)
        {
            _first = _end = _referredEnd;
        }

        while (_end - _first < EnoughDecoded && Error == 0 && !_isEnded)
        {
            int code = NextCode();
            if (code == ClearCode)
            {
                if (_first < _end)
                {
                    // What is decoded is taken before the table takes its place.
                    _bits = (_bits << _codeBits) | (uint)code;
                    _bitCount += _codeBits;
                    return true;
                }

                ClearTable();
                _first = _end;
            }
            else if (code == ClearCode + 1)
            {
                _isEnded = true;
            }
            else if (code >= 0)
            {
                Append(code);
            }
        }

        if (_first < _end)
        {
            return true;
        }

        Error = Error != 0 ? Error : EndedTooEarly;
        return false;
    }

    private void ClearTable()
    {
        _next = ClearCode + 2;
        _codeBits = _rootBits + 1;
        _last = NoCode;
        _end = _referredEnd = 1 << _rootBits;
    }

    private void Append(int code)
    {
        bool isNew = code == _next && _last != NoCode;
        if (code >= _next && !isNew)
        {
            Error = Defect;
            return;
        }

        int length = isNew ? _lengths[_last] + 1 : _lengths[code];
        if (_end + length > _decoded.Length)
        {
            Array.Resize(ref _decoded, Math.Max(_end + length, _decoded.Length * 2));
        }

        if (isNew)
        {
            _decoded.AsSpan(_lastStart, length - 1).CopyTo(_decoded.AsSpan(_end));
            _decoded[_end + length - 1] = _decoded[_end];
        }
        else
        {
            _decoded.AsSpan(_starts[code], length).CopyTo(_decoded.AsSpan(_end));
        }

        AddToTable();
        (_last, _lastStart) = (code, _end);
        _end += length;
    }

    // The new string is the last one and the byte after it.
    private void AddToTable()
    {
        if (_last != NoCode && _next < MaxCodes)
        {
            (_starts[_next], _lengths[_next]) = (_lastStart, _lengths[_last] + 1);
            _next++;
            _referredEnd = _end + 1;
        }

        if (_next == 1 << _codeBits && _next < MaxCodes)
        {
            _codeBits++;
        }
    }

    // Returns a negative number where the data end.
    private int NextCode()
    {
        while (_bitCount < _codeBits)
        {
            if (_blockAt == _blockLength)
            {
                if (!TryNextBlock())
                {
                    Error = Error != 0 ? Error : EndedTooEarly;
                    return NoCode;
                }

                continue;
            }

            _bits |= (ulong)_block[_blockAt++] << _bitCount;
            _bitCount += 8;
        }

        int code = (int)(_bits & ((1u << _codeBits) - 1));
        _bits >>= _codeBits;
        _bitCount -= _codeBits;
        return code;
    }

    private bool TryNextBlock()
    {
        byte* block;
        if (_block == null)
        {
            return false;
        }

        if (Gif.GetCodeNext(_gif, &block) != Gif.Ok)
        {
            Error = _gif.File.Error;
            _block = null;
            return false;
        }

        SetBlock(block);
        return block != null;
    }

    private void SetBlock(byte* block)
    {
        _block = block == null ? null : block + 1;
        _blockAt = 0;
        _blockLength = block == null ? 0 : block[0];
    }
}
