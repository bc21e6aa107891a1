using System;
using System.IO;
using Korvan.CAD.CadExceptions;

namespace Korvan.CAD.Input;

/// <summary>The bytes of a source from its position on, read on demand: detection of the format reads only as much of a
/// file as it needs, loading reads the rest, as a whole or in pieces.</summary>
internal sealed class SourceWindow
{
    /// <summary>The number of bytes that are read at first, within which are the signatures of all binary
    /// formats.</summary>
    internal const int SignatureLength = 4096;

    /// <summary>The number of bytes that are read at once: a call of Python a block, where the stream is
    /// Python's.</summary>
    internal const int Block = 1 << 18;

    private readonly Stream? _stream;
    private readonly string _name;
    private readonly int _expected;
    private byte[] _data;
    private int _count;
    private bool _isWhole;

    /// <summary>Creates a window on a stream from its position on.</summary>
    internal SourceWindow(Stream stream, string name)
    {
        (_stream, _name) = (stream, name);
        Start = stream.CanSeek ? stream.Position : 0;
        _expected = ExpectedLength(stream, name);
        _data = new byte[Math.Min(_expected == 0 ? SignatureLength : _expected, SignatureLength)];
    }

    /// <summary>Creates a window on an array.</summary>
    internal SourceWindow(byte[] data, string name)
    {
        (_data, _expected, _count, _isWhole, _name) = (data, data.Length, data.Length, true, name);
    }

    /// <summary>Gets the name of the source in messages.</summary>
    internal string Name => _name;

    /// <summary>Gets the position in its stream at which the source begins, in bytes; 0 for streams that are not
    /// seekable.</summary>
    internal long Start { get; }

    /// <summary>Gets the number of bytes: what the source states, or what was read of it where that is
    /// more.</summary>
    internal int Length => Math.Max(_expected, _count);

    /// <summary>Gets the first bytes: enough for all signatures, or the whole of a short source.</summary>
    internal ReadOnlySpan<byte> FirstBytes => First(SignatureLength);

    /// <summary>Returns the first bytes of the source; fewer only if it is shorter.</summary>
    internal ReadOnlySpan<byte> First(int count)
    {
        Fill(count);
        return _data.AsSpan(0, Math.Min(count, _count));
    }

    /// <summary>Passes increasing parts of the source, each from its first byte, to a function until that returns a
    /// result.</summary>
    /// <param name="ask">Returns a format, or <see langword="null"/> as long as more bytes are needed. Its second
    /// argument states whether it gets the whole source.</param>
    internal FileFormat Search(SearchStep ask)
    {
        for (int count = SignatureLength; ; count = count > Array.MaxLength / 2 ? Array.MaxLength : 2 * count)
        {
            ReadOnlySpan<byte> start = First(count);
            bool isWhole = start.Length < count || count == Array.MaxLength;
            FileFormat? answer = ask(start, isWhole);
            if (answer is not null || isWhole)
            {
                return answer ?? FileFormat.Undefined;
            }
        }
    }

    /// <summary>Returns the whole source, in an array of its length.</summary>
    internal byte[] All()
    {
        Fill(Array.MaxLength);
        Array.Resize(ref _data, _count);
        return _data;
    }

    /// <summary>Gets whether all bytes were read.</summary>
    internal bool IsAtEnd => _isWhole;

    /// <summary>Hands over what was read so far to a reader that goes on with <see cref="ReadMore"/>. A source that
    /// does not state its length is read to its end.</summary>
    /// <param name="count">The number of bytes.</param>
    /// <returns>An array that begins with them.</returns>
    internal byte[] TakeStart(out int count)
    {
        Fill(_expected == 0 ? Array.MaxLength : SignatureLength);
        byte[] start = _data;
        (_data, count) = ([], _count);
        return start;
    }

    /// <summary>Reads on behind what was handed over.</summary>
    /// <param name="target">The array.</param>
    /// <param name="start">Where the bytes go in it, as many as it has room for and are read at once.</param>
    /// <returns>The number of bytes; 0 at the end of the source.</returns>
    internal int ReadMore(byte[] target, int start)
    {
        int read = _isWhole ? 0 : _stream!.Read(target, start, Math.Min(target.Length - start, Block));
        VerifyLength((long)_count + read, _name);
        _count += read;
        _isWhole = read == 0;
        return read;
    }

    /// <summary>Goes to the end of the source, as reading the whole does.</summary>
    internal void Leave()
    {
        if (!_isWhole && _stream is { CanSeek: true })
        {
            _stream.Position = Start + Length;
        }
    }

    private void Fill(int wanted)
    {
        while (_count < wanted && !_isWhole)
        {
            if (_count == _data.Length && !Grow(wanted))
            {
                return;
            }

            int room = Math.Min(Math.Min(_data.Length - _count, Block), Math.Max(wanted, SignatureLength) - _count);
            int read = _stream!.Read(_data, _count, room);
            _count += read;
            _isWhole = read == 0;
        }
    }

    private bool Grow(int wanted)
    {
        if (_count < _expected)
        {
            byte[] larger = GC.AllocateUninitializedArray<byte>(Math.Min(_expected, Math.Max(wanted, 2 * _count)));
            _data.AsSpan(0, _count).CopyTo(larger);
            _data = larger;
            return true;
        }

        // A file is rarely longer than stated, so one more byte is read before the array is enlarged.
        int next = _stream!.ReadByte();
        if (next < 0)
        {
            _isWhole = true;
            return false;
        }

        VerifyLength(_count + 1L, _name);
        Array.Resize(ref _data, (int)Math.Min(Math.Max(2L * _count, Block), Array.MaxLength));
        _data[_count++] = (byte)next;
        return true;
    }

    private static int ExpectedLength(Stream stream, string name)
    {
        long length = stream.CanSeek ? Math.Max(0, stream.Length - stream.Position) : 0;
        VerifyLength(length, name);
        return (int)length;
    }

    private static void VerifyLength(long length, string name)
    {
        if (length > Array.MaxLength)
        {
            throw new ImageLoadException(
                $"'{name}' has {(length > Array.MaxLength + 1L ? $"{length}" : "more")} bytes; at most "
                    + $"{Array.MaxLength} can be read.");
        }
    }

    /// <summary>Inspects the first bytes of a source.</summary>
    internal delegate FileFormat? SearchStep(ReadOnlySpan<byte> start, bool isWhole);
}
