using System;
using System.IO;
using System.IO.Compression;
using System.Threading;
using System.Threading.Tasks;

namespace Korvan.CAD.Rendering.Pdf;

/// <summary>
/// Compresses what is handed on block by block: the first one at once, as most pages are short, later ones on another
/// thread while the next one is made. The result is the same either way.
/// </summary>
internal sealed class PdfCompressor : IDisposable
{
    private readonly MemoryStream _packed = new();
    private readonly ZLibStream _zlib;
    private byte[] _block = [];
    private int _length;
    private Task? _task;
    private Claim? _claim;

    internal PdfCompressor(ZLibCompressionOptions level) => _zlib = new ZLibStream(_packed, level, leaveOpen: true);

    /// <summary>Gets whether nothing was handed on.</summary>
    internal bool IsEmpty { get; private set; } = true;

    private static bool HasThreads => Environment.ProcessorCount > 1 && !ForkedProcess.IsChild;

    /// <summary>Compresses a block, and writes what is known of the result so far.</summary>
    internal void Add(ReadOnlySpan<byte> block, PdfOutput output)
    {
        Finish();
        Drain(output);
        if (IsEmpty || !HasThreads)
        {
            IsEmpty = false;
            _zlib.Write(block);
            Drain(output);
            return;
        }

        if (_block.Length < block.Length)
        {
            _block = new byte[block.Length];
        }

        block.CopyTo(_block);
        _length = block.Length;
        var claim = new Claim();
        _claim = claim;
        _task = Task.Run(() => CompressIfFree(claim));
    }

    /// <summary>Ends the compressed data, and writes what is left of it.</summary>
    internal void Close(PdfOutput output)
    {
        Finish();
        _zlib.Dispose();
        Drain(output);
    }

    /// <summary>Ends what works for this. Nothing is written.</summary>
    public void Dispose()
    {
        try
        {
            Finish();
        }
        catch (Exception e) when (e is OutOfMemoryException or IOException)
        {
            // The save has failed already, and tells why.
        }

        _zlib.Dispose();
    }

    // Where other work keeps the threads of the pool, this one compresses the block itself.
    private void Finish()
    {
        if (_task is { } task)
        {
            _task = null;
            if (!CompressIfFree(_claim!))
            {
                task.GetAwaiter().GetResult();
            }
        }
    }

    private bool CompressIfFree(Claim claim)
    {
        bool isFree = claim.TryTake();
        if (isFree)
        {
            _zlib.Write(_block, 0, _length);
        }

        return isFree;
    }

    private void Drain(PdfOutput output)
    {
        output.Write(_packed.GetBuffer().AsSpan(0, (int)_packed.Length));
        _packed.SetLength(0);
    }

    /// <summary>The right to compress one block: a task that begins late finds it taken.</summary>
    private sealed class Claim
    {
        private int _isTaken;

        internal bool TryTake() => Interlocked.Exchange(ref _isTaken, 1) == 0;
    }
}
