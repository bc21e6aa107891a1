using System;
using System.IO;
using System.IO.Compression;
using System.Threading.Tasks;
using Korvan.CAD.Rendering.Pdf;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Streams that are compressed beside what makes them.</summary>
public class PdfCompressorTests
{
    private static readonly ZLibCompressionOptions Level = new() { CompressionLevel = 2 };

    [Theory]
    [InlineData(0)]
    [InlineData(100)]
    [InlineData(4_000_000)]
    public void Compressed_blocks_are_the_same_as_those_of_one_thread(int length)
    {
        byte[] plain = Plain(length);
        var expected = new MemoryStream();
        using (var zlib = new ZLibStream(expected, Level, leaveOpen: true))
        {
            foreach (Range block in Blocks(plain))
            {
                zlib.Write(plain.AsSpan(block));
            }
        }

        // More at once than the pool has threads: some blocks are compressed by those that hand them on.
        var found = new byte[24][];
        Parallel.For(0, found.Length, i => found[i] = Compress(plain));
        Assert.All(found, bytes => Assert.Equal(expected.ToArray(), bytes));
    }

    [Fact]
    public void A_stream_that_is_given_up_ends_without_writing()
    {
        byte[] plain = Plain(2_000_000);
        for (int i = 0; i < 50; i++)
        {
            var target = new MemoryStream();
            using var compressor = new PdfCompressor(Level);
            var output = new PdfOutput(target);
            foreach (Range block in Blocks(plain)[..(1 + (i % 8))])
            {
                compressor.Add(plain.AsSpan(block), output);
            }

            long written = output.Position;
            compressor.Dispose();
            Assert.Equal(written, output.Position);
        }
    }

    private static byte[] Compress(byte[] plain)
    {
        var target = new MemoryStream();
        var output = new PdfOutput(target);
        using var compressor = new PdfCompressor(Level);
        foreach (Range block in Blocks(plain))
        {
            compressor.Add(plain.AsSpan(block), output);
        }

        compressor.Close(output);
        output.Drain();
        return target.ToArray();
    }

    private static Range[] Blocks(byte[] plain)
    {
        var blocks = new Range[1 + (plain.Length / PdfStream.BlockSize)];
        for (int i = 0; i < blocks.Length; i++)
        {
            blocks[i] = (i * PdfStream.BlockSize)..Math.Min(plain.Length, (i + 1) * PdfStream.BlockSize);
        }

        return blocks;
    }

    private static byte[] Plain(int length)
    {
        var random = new Random(3);
        var plain = new byte[length];
        for (int i = 0; i < length; i++)
        {
            plain[i] = (byte)("0123456789. lmS\n"[random.Next(16)]);
        }

        return plain;
    }
}
