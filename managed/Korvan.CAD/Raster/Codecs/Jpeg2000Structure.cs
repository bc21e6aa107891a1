using System;
using System.Buffers.Binary;

namespace Korvan.CAD.Raster.Codecs;

/// <summary>
/// How a JPEG 2000 codestream is divided: tiles, precincts, code blocks and layers. The decoder takes memory for each
/// of them, and a file of some bytes can ask for millions.
/// </summary>
internal sealed class Jpeg2000Structure
{
    // What the decoder takes for each, in bytes, measured.
    private const long TileBytes = 6000;
    private const long TileComponentBytes = 2000;
    private const long BlockBytes = 400;
    private const long PrecinctBytes = 600;
    private const long UsualBytes = 16L << 20; // in images of the usual division, not worth counting
    private const int MaxResolution = 32;
    private const int LargestBlock = 6; // the exponent

    private const ushort StartOfTile = 0xFF90;
    private const ushort StartOfData = 0xFF93;
    private const ushort EndOfStream = 0xFFD9;
    private const ushort Size = 0xFF51;
    private const ushort CodingStyle = 0xFF52;
    private const ushort ComponentStyle = 0xFF53;

    private readonly int[] _precincts = new int[MaxResolution + 1];
    private long _width;
    private long _height;
    private long _tileWidth = 1;
    private long _tileHeight = 1;
    private int _components;
    private int _levels;
    private int _layers = 1;
    private int _blockWidth = LargestBlock;
    private int _blockHeight = LargestBlock;

    private Jpeg2000Structure() => Array.Fill(_precincts, 0xFF);

    /// <summary>Returns the memory that the decoder takes for tiles, precincts and code blocks of a file, beyond what
    /// is usual.</summary>
    internal static long DecoderBytes(ReadOnlySpan<byte> data, bool bare)
    {
        var structure = new Jpeg2000Structure();
        structure.Read(bare ? data : Codestream(data));
        return Math.Max(0, structure.Bytes() - UsualBytes);
    }

    private static ReadOnlySpan<byte> Codestream(ReadOnlySpan<byte> boxes)
    {
        while (boxes.Length >= 16)
        {
            ulong length = BinaryPrimitives.ReadUInt32BigEndian(boxes);
            int header = length == 1 ? 16 : 8;
            length = length switch
            {
                0 => (ulong)boxes.Length,
                1 => BinaryPrimitives.ReadUInt64BigEndian(boxes[8..]),
                _ => length,
            };
            if (boxes[4..8].SequenceEqual("jp2c"u8))
            {
                return boxes[header..];
            }

            if (length < (ulong)header || length > (ulong)boxes.Length)
            {
                break;
            }

            boxes = boxes[(int)length..];
        }

        return [];
    }

    // A tile may have finer blocks than the whole, so that the headers of all tiles count.
    private void Read(ReadOnlySpan<byte> stream)
    {
        int at = 2;
        long next = 0;
        while (at + 4 <= stream.Length)
        {
            ushort marker = BinaryPrimitives.ReadUInt16BigEndian(stream[at..]);
            if (marker == StartOfData)
            {
                if (next <= at || next >= stream.Length)
                {
                    return;
                }

                at = (int)next;
                continue;
            }

            int length = BinaryPrimitives.ReadUInt16BigEndian(stream[(at + 2)..]);
            if (marker == EndOfStream || length < 2 || at + 2 + length > stream.Length)
            {
                return;
            }

            ReadOnlySpan<byte> body = stream.Slice(at + 4, length - 2);
            if (marker == StartOfTile && body.Length >= 8)
            {
                next = at + (long)BinaryPrimitives.ReadUInt32BigEndian(body[2..]);
            }

            Take(marker, body);
            at += 2 + length;
        }
    }

    private void Take(ushort marker, ReadOnlySpan<byte> body)
    {
        int wide = _components < 257 ? 1 : 2;
        if (marker == Size && body.Length >= 36)
        {
            _width = Math.Max(0, Field(body, 2) - Field(body, 10));
            _height = Math.Max(0, Field(body, 6) - Field(body, 14));
            _tileWidth = Math.Max(1, Field(body, 18));
            _tileHeight = Math.Max(1, Field(body, 22));
            _components = BinaryPrimitives.ReadUInt16BigEndian(body[34..]);
        }
        else if (marker == CodingStyle && body.Length >= 10)
        {
            _layers = Math.Max(_layers, BinaryPrimitives.ReadUInt16BigEndian(body[2..]));
            TakeStyle((body[0] & 1) != 0, body[5..]);
        }
        else if (marker == ComponentStyle && body.Length >= wide + 6)
        {
            TakeStyle((body[wide] & 1) != 0, body[(wide + 1)..]);
        }
    }

    private void TakeStyle(bool hasPrecincts, ReadOnlySpan<byte> style)
    {
        _levels = Math.Max(_levels, Math.Min((int)style[0], MaxResolution));
        _blockWidth = Math.Min(_blockWidth, (style[1] & 15) + 2);
        _blockHeight = Math.Min(_blockHeight, (style[2] & 15) + 2);
        for (int i = 0; hasPrecincts && i <= Math.Min((int)style[0], MaxResolution) && 5 + i < style.Length; i++)
        {
            int size = style[5 + i];
            _precincts[i] = Math.Min(_precincts[i] & 15, size & 15) | (Math.Min(_precincts[i] >> 4, size >> 4) << 4);
        }
    }

    private long Bytes()
    {
        double tiles = Math.Ceiling((double)_width / _tileWidth) * Math.Ceiling((double)_height / _tileHeight);
        double width = Math.Min(_width, _tileWidth);
        double height = Math.Min(_height, _tileHeight);
        double bytes = 0;
        double mostPrecincts = 1;
        for (int i = 0; i <= _levels; i++)
        {
            // The first resolution is one band, each further one has three of half its size.
            double scale = Math.ScaleB(1, i - _levels);
            double precincts = Parts(width * scale, _precincts[i] & 15) * Parts(height * scale, _precincts[i] >> 4);
            double band = i == 0 ? scale : scale / 2;
            int less = i == 0 ? 0 : 1;
            double blocks = Parts(width * band, Math.Min(_blockWidth, Math.Max(0, (_precincts[i] & 15) - less)))
                * Parts(height * band, Math.Min(_blockHeight, Math.Max(0, (_precincts[i] >> 4) - less)));
            bytes += ((blocks * BlockBytes) + (precincts * PrecinctBytes)) * (i == 0 ? 1 : 3);
            mostPrecincts = Math.Max(mostPrecincts, precincts);
        }

        double packets = mostPrecincts * _layers * (_levels + 1) * _components * sizeof(short);
        bytes = (bytes * _components) + packets + (tiles * (TileBytes + (TileComponentBytes * _components)));
        return (long)Math.Min(bytes, long.MaxValue / 4);
    }

    private static double Parts(double length, int exponent) => Math.Ceiling(Math.ScaleB(length, -exponent));

    private static long Field(ReadOnlySpan<byte> body, int at) => BinaryPrimitives.ReadUInt32BigEndian(body[at..]);
}
