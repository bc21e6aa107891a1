using System;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.StepText;

/// <summary>Line numbers, from 1, of offsets. The lines ahead of each block are counted once, so that many offsets can
/// be asked for. Lines end with LF or CR LF; in a file without any LF, with CR.</summary>
internal sealed class StepLines(byte[] data)
{
    private const int BlockLength = 1 << 16;

    private readonly List<int> _ahead = [];
    private byte _end = (byte)'\n';

    internal int LineOf(int offset)
    {
        if (_ahead.Count == 0)
        {
            Count();
        }

        int at = Math.Clamp(offset, 0, data.Length);
        int block = Math.Min(at / BlockLength, _ahead.Count - 1);
        return 1 + _ahead[block] + data.AsSpan((block * BlockLength)..at).Count(_end);
    }

    private void Count()
    {
        _end = data.AsSpan().Contains((byte)'\n') ? (byte)'\n' : (byte)'\r';
        int lines = 0;
        _ahead.Add(0);
        for (int at = BlockLength; at < data.Length; at += BlockLength)
        {
            lines += data.AsSpan(at - BlockLength, BlockLength).Count(_end);
            _ahead.Add(lines);
        }
    }
}
