using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Korvan.CAD.FileFormats.Cad.Dwg.Container;
using Korvan.CAD.FileFormats.Cad.Dwg.Early;

namespace Korvan.CAD.Tests.FileFormats.Cad.Dwg.Early;

/// <summary>Builds files of the releases before 13.</summary>
/// <param name="code">The code of the release.</param>
/// <param name="variables">How many header variables the file states.</param>
internal sealed class EarlyFile(string code, int variables)
{
    private const int SentinelLength = 16;
    private static readonly string[] FirstTables = ["BLOCK", "LAYER", "STYLE", "LTYPE", "VIEW"];

    private readonly Dictionary<string, List<byte[]>> _tables = [];
    private readonly bool _hasChecksums = code == "AC1009";

    internal List<byte[]> Entities { get; } = [];

    internal List<byte[]> BlockEntities { get; } = [];

    internal List<byte[]> Extras { get; } = [];

    /// <summary>Gets the position of each part in the file that was built last.</summary>
    internal Dictionary<string, int> Places { get; } = [];

    /// <summary>Creates a file of release 11 with the layers 0 and WALLS and two line types.</summary>
    internal static EarlyFile Release11() => WithTables(new EarlyFile("AC1009", 205));

    /// <summary>Creates a file of release 9 with the same tables.</summary>
    internal static EarlyFile Release9() => WithTables(new EarlyFile("AC1004", 129));

    /// <summary>Returns the bytes of values.</summary>
    internal static byte[] Bytes(params object[] values)
    {
        using MemoryStream stream = new();
        using BinaryWriter writer = new(stream);
        foreach (object value in values)
        {
            switch (value)
            {
                case byte one: writer.Write(one); break;
                case short one: writer.Write(one); break;
                case ushort one: writer.Write(one); break;
                case int one: writer.Write(one); break;
                case double one: writer.Write(one); break;
                case byte[] some: writer.Write(some); break;
                case string text: writer.Write((short)text.Length); writer.Write(Encoding.Latin1.GetBytes(text)); break;
                default: throw new ArgumentException($"No coding for {value.GetType()}.", nameof(values));
            }
        }

        writer.Flush();
        return stream.ToArray();
    }

    /// <summary>Returns an entity record.</summary>
    internal byte[] Entity(int type, int flags, int layer, int options, params object[] values)
    {
        byte[] fields = Bytes(values);
        int length = 8 + fields.Length + (_hasChecksums ? 2 : 0);
        return Checked(Bytes((byte)type, (byte)flags, (short)length, (short)layer, (ushort)options, fields));
    }

    /// <summary>Returns a record that leads to another place.</summary>
    internal static byte[] Jump(int target) => Bytes((byte)18, (byte)0, (short)8, target);

    /// <summary>Adds a record to a table.</summary>
    internal void Add(string table, string name, byte flags, params object[] values)
    {
        byte[] used = _hasChecksums ? [0, 0] : [];
        byte[] padded = Encoding.Latin1.GetBytes(name.PadRight(32, '\0'));
        List<byte[]> records = _tables.TryGetValue(table, out List<byte[]>? known) ? known : _tables[table] = [];
        records.Add(Checked(Bytes(flags, padded, used, Bytes(values))));
    }

    /// <summary>Adds records of each structure: entities, a block, a polyline, and text.</summary>
    internal void AddSample()
    {
        Add("STYLE", "STANDARD", 0, 0.0, 1.0, 0.0, (byte)0, 0.2, new byte[128]);
        Add("BLOCK", "DOOR", 2, 0x40000000, (short)0, (short)0);
        BlockEntities.Add(Entity(12, 0, 0, 0, 7.0, 8.0));
        BlockEntities.Add(Entity(15, 0, 0, 2, 0.0, 0.0, 0.5, "A", "ask", "TAG", (byte)4, 1.5));
        BlockEntities.Add(Entity(13, 0, 0, 0));
        for (int i = 0; i < 4; i++)
        {
            Entities.Add(Entity(3, 0, i % 2, 0, 10.0 * i, 1.0, 0.5));
            Entities.Add(Entity(7, 1, 0, 1, (byte)i, 10.0 * i, 1.0, 0.5, "text", 0.5));
        }

        Entities.Add(Entity(14, 128, 0, 4, (short)0, 1.0, 2.0, 1.0));
        Entities.Add(Entity(16, 0, 0, 0, 1.0, 1.0, 0.5, "B", "TAG", (byte)0));
        Entities.Add(Entity(17, 0, 0, 0, 0));
        Entities.Add(Entity(19, 128 | 4, 0, 1, 3.0, (byte)1));
        Entities.Add(Entity(20, 4, 0, 4, 3.0, 0.0, 0.0, 0.5));
        Entities.Add(Entity(17, 0, 1, 0, 0));
    }

    internal byte[] Build()
    {
        List<EarlyField> fields = [.. EarlyHeaderFields.Parts.Where(part => variables > part.Above)
            .SelectMany(static part => part.Fields).Where(field => field.IsIn(ReleaseOf(), 0))];
        byte[] header = new byte[0x5E + fields.Sum(EarlyValues.LengthOf) + (_hasChecksums ? 2 : 0)];
        using MemoryStream file = new();
        file.Write(header);
        int entities = Put(file, "entities", Entities);
        int entitiesEnd = entities + Entities.Sum(static one => one.Length);
        Dictionary<string, int> tables = _tables.ToDictionary(
            static table => table.Key, table => Put(file, table.Key, table.Value));
        int blocks = Put(file, "block entities", BlockEntities);
        int extras = Put(file, "extra entities", Extras);
        byte[] data = file.ToArray();
        Encoding.ASCII.GetBytes(code).CopyTo(data, 0);
        Bytes(
            (short)3, (short)5, (short)variables, (byte)0, entities, entitiesEnd, blocks,
            BlockEntities.Sum(static one => one.Length) | 0x40000000, extras,
            Extras.Sum(static one => one.Length) | unchecked((int)0x80000000)).CopyTo(data, 0x0D);
        PutPlaces(data, fields, tables);
        if (_hasChecksums)
        {
            Checked(data[..(header.Length - 2)]).CopyTo(data, 0);
        }

        return data;
    }

    private static EarlyFile WithTables(EarlyFile file)
    {
        file.Add("LTYPE", "CONTINUOUS", 0, new byte[48], (byte)65, (byte)0, 0.0, new byte[96]);
        file.Add("LTYPE", "DASHED", 0, new byte[48], (byte)65, (byte)2, 0.75, 0.5, -0.25, new byte[80]);
        file.Add("LAYER", "0", 0, (short)7, (short)0);
        file.Add("LAYER", "WALLS", 0, (short)-3, (short)1);
        return file;
    }

    private EarlyRelease ReleaseOf() => EarlyReleases.Of(Encoding.ASCII.GetBytes(code));

    private void PutPlaces(byte[] data, List<EarlyField> fields, Dictionary<string, int> tables)
    {
        int position = 0x2C;
        foreach (string name in FirstTables)
        {
            PlaceOf(name).CopyTo(data, position);
            position += 10;
        }

        foreach (EarlyField field in fields)
        {
            if (field.Coding == EarlyCoding.Table)
            {
                PlaceOf(field.Name).CopyTo(data, position);
            }

            Places.TryAdd("$" + field.Name, position);
            position += EarlyValues.LengthOf(field);
        }

        byte[] PlaceOf(string name)
        {
            List<byte[]> records = _tables.GetValueOrDefault(name) ?? [];
            return Bytes(
                (short)(records.Count == 0 ? 33 : records[0].Length), (short)records.Count, (short)0,
                tables.GetValueOrDefault(name));
        }
    }

    private int Put(MemoryStream file, string name, List<byte[]> records)
    {
        if (_hasChecksums)
        {
            file.Write(EarlySentinels.Of(name));
        }

        int start = (int)file.Position;
        records.ForEach(record => file.Write(record));
        file.Write(new byte[_hasChecksums ? SentinelLength : 0]);
        Places[name] = start;
        return start;
    }

    private byte[] Checked(byte[] record) =>
        _hasChecksums ? [.. record, .. BitConverter.GetBytes(Crc16.Compute(Crc16.Seed, record))] : record;
}
