using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Proxy;

/// <summary>
/// The graphics that programs store with an entity for those that do not know its class: chunks of a length and a type
/// each, as the open specification of drawing files has them ("Proxy entity graphics").
/// </summary>
internal static partial class ProxyGraphics
{
    private const int HeaderSize = 8;
    private const int ShortLength = 92;
    private const int LongLength = 160;
    private const int Bytes = 310;
    private const string Marker = "AcDbEntity";

    /// <summary>Gives the stored graphics of an entity to a sink. False for an entity that has none.</summary>
    internal static bool Emit(CadEntityBase entity, IGeometrySink sink)
    {
        byte[] data = DataOf(entity);
        if (data.Length <= HeaderSize)
        {
            return false;
        }

        var state = new State(sink);
        int at = HeaderSize;
        while (at + HeaderSize <= data.Length)
        {
            int size = BinaryPrimitives.ReadInt32LittleEndian(data.AsSpan(at));
            int type = BinaryPrimitives.ReadInt32LittleEndian(data.AsSpan(at + sizeof(int)));
            if (size < HeaderSize || size > data.Length - at)
            {
                break;
            }

            Draw((Chunk)type, new ChunkReader(data.AsSpan(at + HeaderSize, size - HeaderSize)), state);
            at += size;
        }

        // Damaged graphics may end inside of their clips.
        for (; state.Clips > 0; state.Clips--)
        {
            sink.EndClip();
        }

        return state.IsDrawn;
    }

    // The length comes first; the bytes that follow it are the graphics, those after other lengths are not.
    /// <summary>Returns the stored graphics of an entity.</summary>
    internal static byte[] DataOf(CadEntityBase entity)
    {
        if (entity is CadAcadProxyEntity { GraphicsData.Length: > 0 } proxy)
        {
            return proxy.GraphicsData;
        }

        if (entity.Kept is KeptBits bits)
        {
            return bits.Graphics;
        }

        if (entity.Kept is not KeptTags kept)
        {
            return [];
        }

        var bytes = new List<byte>();
        bool isGraphics = false;
        foreach (KeptTag tag in kept.Tags)
        {
            CadCodeValue value = tag.Value;
            if (tag.Subclass is not (Marker or KeptTag.Verbatim))
            {
                continue;
            }

            if (value.Attribute is ShortLength or LongLength && bytes.Count == 0)
            {
                isGraphics = true;
            }
            else if (value.Attribute != Bytes)
            {
                isGraphics = false;
            }
            else if (isGraphics && value.Value.Length % 2 == 0
                && value.Value.AsSpan().IndexOfAnyExcept(HexDigits) < 0)
            {
                bytes.AddRange(Convert.FromHexString(value.Value));
            }
        }

        return [.. bytes];
    }

    private static readonly System.Buffers.SearchValues<char> HexDigits =
        System.Buffers.SearchValues.Create("0123456789abcdefABCDEF");

    private enum Chunk
    {
        Extents = 1,
        Circle = 2,
        CircleOfPoints = 3,
        Arc = 4,
        ArcOfPoints = 5,
        Polyline = 6,
        Polygon = 7,
        Mesh = 8,
        Shell = 9,
        Text = 10,
        FullText = 11,
        ConstructionLine = 12,
        Ray = 13,
        Color = 14,
        Layer = 16,
        LineType = 18,
        Fill = 20,
        TrueColor = 22,
        LineWeight = 23,
        LineTypeScale = 24,
        Thickness = 25,
        PushClip = 27,
        PopClip = 28,
        PushTransform = 29,
        PushOtherTransform = 30,
        PopTransform = 31,
        PolylineWithNormal = 32,
        LightPolyline = 33,
        UnicodeText = 36,
        FullUnicodeText = 38,
    }

    /// <summary>What the chunks before have set.</summary>
    private sealed class State(IGeometrySink sink)
    {
        internal IGeometrySink Sink { get; } = sink;

        internal ShapeTraits Traits { get; set; } = new();

        internal bool IsFilled { get; set; }

        internal double Thickness { get; set; }

        internal Stack<Affine3> Transforms { get; } = new([Affine3.Identity]);

        internal Affine3 Map => Transforms.Peek();

        internal bool IsDrawn { get; set; }

        /// <summary>Gets or sets how many clips are open.</summary>
        internal int Clips { get; set; }

        /// <summary>Gets or sets how many of the clips to come end without having been started.</summary>
        internal int SkippedClips { get; set; }

        internal bool AreTraitsTold { get; set; } = true;
    }
}
