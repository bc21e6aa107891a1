using System;
using System.Buffers.Binary;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Scene3D;

namespace Korvan.CAD.Rendering.Meshes;

/// <summary>A run of numbers in a view of the buffer.</summary>
internal sealed record GltfAccessor(int View, long Offset, int ComponentType, int Count, string Type)
{
    internal const int UnsignedByte = 5121;
    internal const int UnsignedShort = 5123;
    internal const int UnsignedInt = 5125;
    internal const int Float = 5126;

    internal Bounds3? Bounds { get; init; }

    /// <summary>Gets whether whole numbers stand for shares of their largest.</summary>
    internal bool Normalized { get; init; }
}

/// <summary>A piece of the buffer.</summary>
internal readonly record struct GltfView(long Offset, long Length, int Target);

/// <summary>Where the buffer has what belongs to a mesh; attributes by their names in the format.</summary>
internal sealed record GltfMesh(Mesh Mesh, List<(string Name, int Accessor)> Attributes, List<int> Indices)
{
    /// <summary>Gets the point that positions are counted from, so that single precision is fine for them.</summary>
    internal required Vec3 Origin { get; init; }
}

/// <summary>Lays out the numbers of meshes, each mesh once, and writes them.</summary>
internal sealed class GltfBuffer
{
    private const int ArrayBuffer = 34962;
    private const int ElementArrayBuffer = 34963;
    private const int Alignment = 4;

    // The largest index of a component type restarts strips and stays free.
    private const int MaxShortCount = 65535;

    private readonly Dictionary<Mesh, int> _places = [];

    internal List<GltfMesh> Meshes { get; } = [];

    internal List<GltfAccessor> Accessors { get; } = [];

    internal List<GltfView> Views { get; } = [];

    internal long Length { get; private set; }

    /// <summary>The place of a mesh, which is laid out when it is met first.</summary>
    internal int PlaceOf(Mesh mesh, Vec3 origin)
    {
        if (!_places.TryGetValue(mesh, out int place))
        {
            place = Meshes.Count;
            _places.Add(mesh, place);
            Meshes.Add(LayOut(mesh, origin));
        }

        return place;
    }

    internal byte[] Write()
    {
        if (Length > Array.MaxLength)
        {
            throw new RenderException("The faces take more than 2 GB; write the drawing layer by layer.");
        }

        Budget.VerifyRoom(Length);
        byte[] data = new byte[Length];
        int view = 0;
        foreach (GltfMesh mesh in Meshes)
        {
            view = Write(mesh, data, view);
        }

        return data;
    }

    private GltfMesh LayOut(Mesh mesh, Vec3 origin)
    {
        int count = mesh.Positions.Count;
        Bounds3 box = mesh.Bounds();
        var bounds = new Bounds3(box.Min - origin, box.Max - origin);
        var placed = new GltfMesh(mesh, [], []) { Origin = origin };
        AddAttribute(
            placed, "POSITION", 12, new(Views.Count, 0, GltfAccessor.Float, count, "VEC3") { Bounds = bounds });
        if (mesh.Normals.Count > 0)
        {
            AddAttribute(placed, "NORMAL", 12, new(Views.Count, 0, GltfAccessor.Float, count, "VEC3"));
        }

        if (mesh.TextureCoordinates.Count > 0)
        {
            AddAttribute(placed, "TEXCOORD_0", 8, new(Views.Count, 0, GltfAccessor.Float, count, "VEC2"));
        }

        if (mesh.Colors.Count > 0)
        {
            var colors =
                new GltfAccessor(Views.Count, 0, GltfAccessor.UnsignedByte, count, "VEC4") { Normalized = true };
            AddAttribute(placed, "COLOR_0", 4, colors);
        }

        int size = IndexSize(mesh);
        int type = size == 2 ? GltfAccessor.UnsignedShort : GltfAccessor.UnsignedInt;
        foreach (MeshRange range in mesh.Ranges)
        {
            placed.Indices.Add(Accessors.Count);
            Accessors.Add(new(Views.Count, (long)range.First * size, type, range.Count, "SCALAR"));
        }

        AddView((long)mesh.Indices.Count * size, ElementArrayBuffer);
        return placed;
    }

    private static int IndexSize(Mesh mesh) => mesh.Positions.Count <= MaxShortCount ? 2 : 4;

    private void AddAttribute(GltfMesh mesh, string name, int size, GltfAccessor accessor)
    {
        mesh.Attributes.Add((name, Accessors.Count));
        Accessors.Add(accessor);
        AddView((long)accessor.Count * size, ArrayBuffer);
    }

    private void AddView(long length, int target)
    {
        Views.Add(new GltfView(Length, length, target));
        Length += (length + Alignment - 1) / Alignment * Alignment;
    }

    private int Write(GltfMesh placed, byte[] data, int view)
    {
        Mesh mesh = placed.Mesh;
        Put(data, view++, mesh.Positions, p => p - placed.Origin);
        if (mesh.Normals.Count > 0)
        {
            Put(data, view++, mesh.Normals, static normal => normal);
        }

        if (mesh.TextureCoordinates.Count > 0)
        {
            int at = (int)Views[view++].Offset;
            foreach (Vec2 uv in mesh.TextureCoordinates)
            {
                at = Put(data, Put(data, at, uv.X), 1 - uv.Y); // images of the format run downwards
            }
        }

        if (mesh.Colors.Count > 0)
        {
            int at = (int)Views[view++].Offset;
            foreach (Rgba color in mesh.Colors)
            {
                (data[at], data[at + 1], data[at + 2], data[at + 3]) = (color.R, color.G, color.B, color.A);
                at += 4;
            }
        }

        PutIndices(data, view++, mesh);
        return view;
    }

    private void Put(byte[] data, int view, List<Vec3> vectors, Func<Vec3, Vec3> map)
    {
        int at = (int)Views[view].Offset;
        foreach (Vec3 vector in vectors)
        {
            Vec3 v = map(vector);
            at = Put(data, Put(data, Put(data, at, v.X), v.Y), v.Z);
        }
    }

    private static int Put(byte[] data, int at, double value)
    {
        BinaryPrimitives.WriteSingleLittleEndian(data.AsSpan(at), (float)value);
        return at + 4;
    }

    private void PutIndices(byte[] data, int view, Mesh mesh)
    {
        Span<byte> rest = data.AsSpan((int)Views[view].Offset);
        int size = IndexSize(mesh);
        foreach (int index in mesh.Indices)
        {
            if (size == 2)
            {
                BinaryPrimitives.WriteUInt16LittleEndian(rest, (ushort)index);
            }
            else
            {
                BinaryPrimitives.WriteInt32LittleEndian(rest, index);
            }

            rest = rest[size..];
        }
    }
}
