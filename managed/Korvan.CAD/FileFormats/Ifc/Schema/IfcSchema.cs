using System;
using System.Collections.Concurrent;
using System.Collections.Generic;
using System.IO;
using System.Reflection;
using System.Text;

namespace Korvan.CAD.FileFormats.Ifc.Schema;

/// <summary>One edition of the schema at run time: its classes by name and number, and the managed types behind
/// them, which are in an assembly of their own.</summary>
internal sealed class IfcSchema
{
    private const string AssemblyName = "Korvan.CAD.Schemas";
    private const string Root = "Korvan.CAD.FileFormats.Ifc.";

    private static readonly Lazy<IfcSchema> s_ifc2X3 = new(() => new IfcSchema(IfcVersion.IFC2X3, "2X3"));
    private static readonly Lazy<IfcSchema> s_ifc4 = new(() => new IfcSchema(IfcVersion.IFC4, "4"));
    private static readonly Lazy<IfcSchema> s_ifc4X3 = new(() => new IfcSchema(IfcVersion.IFC4X3, "4X3"));
    private static readonly ConcurrentDictionary<Type, IfcClass> s_classes = new();

    private readonly string _suffix;
    private readonly Assembly _assembly = Assembly.Load(AssemblyName);
    private readonly Dictionary<string, IfcClass> _byName = new(StringComparer.OrdinalIgnoreCase);
    private readonly Dictionary<string, string> _typeNames = new(StringComparer.OrdinalIgnoreCase);
    private readonly Dictionary<string, string[]> _keywords = new(StringComparer.Ordinal);
    private readonly ConcurrentDictionary<string, Type> _types = new(StringComparer.Ordinal);
    private readonly ConcurrentDictionary<string, HashSet<string>> _members = new(StringComparer.Ordinal);
    private readonly IfcClass[] _classes;
    private readonly Type?[] _classTypes;

    private IfcSchema(IfcVersion version, string suffix)
    {
        Version = version;
        _suffix = suffix;
        Table = ReadTable();
        _classes = new IfcClass[Table.Entities.Count];
        _classTypes = new Type?[_classes.Length];
        NumberClasses();
        foreach (string name in Table.DefinedTypes.Keys)
        {
            _typeNames[name] = name;
        }

        foreach (string name in Table.Enumerations.Keys)
        {
            _typeNames[name] = name;
        }
    }

    internal IfcVersion Version { get; }

    internal SchemaTable Table { get; }

    internal IReadOnlyList<IfcClass> Classes => _classes;

    internal static IfcSchema Of(IfcVersion version) => version switch
    {
        IfcVersion.IFC2X3 => s_ifc2X3.Value,
        IfcVersion.IFC4 => s_ifc4.Value,
        _ => s_ifc4X3.Value,
    };

    /// <summary>Gives the edition that a managed type of a schema belongs to.</summary>
    internal static IfcSchema Of(Type type)
    {
        string space = type.Namespace ?? string.Empty;
        return space.Contains(".Ifc2x3.", StringComparison.Ordinal) ? Of(IfcVersion.IFC2X3)
            : space.Contains(".Ifc4.", StringComparison.Ordinal) ? Of(IfcVersion.IFC4)
            : Of(IfcVersion.IFC4X3);
    }

    /// <summary>Gives the class of a managed entity type.</summary>
    internal static IfcClass ClassOf(Type type) =>
        s_classes.GetOrAdd(type, static one => Of(one).FindClass(Of(one).Strip(one.Name))!);

    /// <summary>Finds an entity by its name in the schema, in any case; nothing for no entity.</summary>
    internal IfcClass? FindClass(string name) => _byName.GetValueOrDefault(name);

    /// <summary>Finds an entity by its name, with or without the edition behind it.</summary>
    internal IfcClass? FindClassOrType(string name) => FindClass(name) ?? FindClass(Strip(name));

    /// <summary>Makes an instance without attributes. Nothing runs but the constructor that C# gives.</summary>
    internal IfcEntityBase Create(IfcClass one)
    {
        Type type = _classTypes[one.Number] ??= TypeOf("Entities", one.Name);
        return (IfcEntityBase)Activator.CreateInstance(type)!;
    }

    /// <summary>Gives the spelling of the schema for a defined type or an enumeration; nothing for neither.</summary>
    internal string? TypeNameOf(string keyword) => _typeNames.GetValueOrDefault(keyword);

    /// <summary>Gives the managed type of a defined, select or enumeration type.</summary>
    internal Type TypeOf(string name) => _types.GetOrAdd(name, one => TypeOf("Types", one));

    /// <summary>Gives the items of an enumeration in their order; the first has the value 1.</summary>
    internal string[] ItemsOf(string enumeration) => Table.Enumerations[enumeration].Members;

    /// <summary>Tells whether a select type admits a type, by itself, through another select, or as the base of it.</summary>
    internal bool Admits(string select, string typeName)
    {
        HashSet<string> members = _members.GetOrAdd(select, AllMembers);
        for (IfcClass? level = FindClass(typeName); level is not null; level = level.Parent)
        {
            if (members.Contains(level.Name))
            {
                return true;
            }
        }

        return members.Contains(typeName);
    }

    /// <summary>Takes the edition off the name of a managed type.</summary>
    internal string Strip(string typeName) => typeName.EndsWith(_suffix, StringComparison.OrdinalIgnoreCase)
        ? typeName[..^_suffix.Length]
        : typeName;

    private Type TypeOf(string kind, string name)
    {
        string edition = Version == IfcVersion.IFC2X3 ? "Ifc2x3" : Version == IfcVersion.IFC4 ? "Ifc4" : "Ifc4x3";
        return _assembly.GetType($"{Root}{edition}.{kind}.{name}{_suffix}", true)!;
    }

    private HashSet<string> AllMembers(string select)
    {
        HashSet<string> all = new(StringComparer.OrdinalIgnoreCase);
        Stack<string> open = new([select]);
        while (open.TryPop(out string? name))
        {
            foreach (string member in Table.Selects[name].Members)
            {
                if (!all.Add(member) || !Table.Selects.ContainsKey(member))
                {
                    continue;
                }

                open.Push(member);
            }
        }

        return all;
    }

    private SchemaTable ReadTable()
    {
        using Stream stream = _assembly.GetManifestResourceStream($"ifc{_suffix.ToLowerInvariant()}.table")!;
        using StreamReader reader = new(stream, Encoding.UTF8);
        return SchemaTable.Read(reader);
    }

    // Depth first, so that what is derived from a class has the numbers behind its own.
    private void NumberClasses()
    {
        Dictionary<string, List<SchemaEntity>> derived = new(StringComparer.Ordinal);
        foreach (SchemaEntity entity in Table.Entities.Values)
        {
            string key = entity.BaseName ?? string.Empty;
            if (!derived.TryGetValue(key, out List<SchemaEntity>? list))
            {
                derived[key] = list = [];
            }

            list.Add(entity);
        }

        int next = 0;
        foreach (SchemaEntity root in derived[string.Empty])
        {
            Number(root, null, derived, ref next);
        }

        foreach (IfcClass one in _classes)
        {
            one.Link(Table.Entities[one.Name]);
        }
    }

    private void Number(
        SchemaEntity entity, IfcClass? parent, Dictionary<string, List<SchemaEntity>> derived, ref int next)
    {
        IfcClass one = new(this, entity, parent, next++);
        _classes[one.Number] = one;
        _byName[one.Name] = one;
        foreach (SchemaEntity child in derived.GetValueOrDefault(entity.Name) ?? [])
        {
            Number(child, one, derived, ref next);
        }

        one.Last = next - 1;
    }
}
