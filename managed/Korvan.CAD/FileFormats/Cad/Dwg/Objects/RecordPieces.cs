using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Objects;

/// <summary>A part of the objects of a file.</summary>
/// <param name="Start">The first object.</param>
/// <param name="End">The object after the last one.</param>
/// <param name="Steps">How many steps of work it is.</param>
internal sealed record RecordPiece(int Start, int End, long Steps);

/// <summary>Parts of the objects of a file, which are worth a thread each.</summary>
/// <param name="records">The number of objects.</param>
/// <param name="bytes">The bytes that they have together, or more.</param>
internal sealed class RecordPieces(int records, int bytes)
{
    private const int MinRecords = 2048; // fewer are read before another thread has begun
    private const int MinBytes = 1 << 18;
    private const long MaxBits = 8L << 17;
    private const int MaxRecords = 512;
    private const int BitsPerStep = 8 * 512;

    private readonly List<RecordPiece> _pieces = [];
    private readonly bool _isDivided = records >= MinRecords || bytes >= MinBytes;
    private int _start;
    private int _end;
    private long _bits;
    private long _steps;

    internal int Count => _pieces.Count;

    internal RecordPiece this[int piece] => _pieces[piece];

    /// <summary>Adds the next object.</summary>
    /// <param name="bits">The length of its record; 0 for an object that is not there.</param>
    internal void Add(long bits)
    {
        _bits += bits;
        _steps += 1 + (bits / BitsPerStep);
        _end++;
        if (_isDivided && (_bits >= MaxBits || _end - _start >= MaxRecords))
        {
            End();
        }
    }

    /// <summary>Ends the last piece. Many entries of an object map may lead to one record, so that finding the records
    /// counts as work.</summary>
    internal void End()
    {
        if (_end > _start)
        {
            Budget.Step(_steps);
            _pieces.Add(new RecordPiece(_start, _end, _steps));
            (_start, _bits, _steps) = (_end, 0, 0);
        }
    }
}
