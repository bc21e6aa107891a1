using System;
using System.Collections.Concurrent;
using System.Collections.Generic;
using System.IO;
using System.Reflection;
using System.Text;

namespace Korvan.CAD.FileFormats.Ifc.Schema;

/// <summary>One version of the schema at run time: its classes by name and number, and their managed types, which are
/// in a separate assembly.</summary>
internal sealed class IfcSchema
{
    private const string AssemblyName = "Korvan.CAD.Schemas";
    private const string Root = "Korvan.CAD.FileFormats.Ifc.";

    private static readonly Lazy<IfcSchema> Ifc2X3 = new(() => new IfcSchema(IfcVersion.IFC2X3, "2X3"));
    private static readonly Lazy<IfcSchema> Ifc4 = new(() => new IfcSchema(IfcVersion.IFC4, "4"));
    private static readonly Lazy<IfcSchema> Ifc4X3 = new(() => new IfcSchema(IfcVersion.IFC4X3, "4X3"));
    private static readonly ConcurrentDictionary<Type, IfcClass> ClassesByType = new();

    private readonly string _suffix;
    private readonly Assembly _assembly = Assembly.Load(AssemblyName);
    private readonly Dictionary<string, IfcClass> _byName = new(StringComparer.OrdinalIgnoreCase);
    private readonly Dictionary<string, string> _typeNames = new(StringComparer.OrdinalIgnoreCase);
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
        IfcVersion.IFC2X3 => Ifc2X3.Value,
        IfcVersion.IFC4 => Ifc4.Value,
        _ => Ifc4X3.Value,
    };

    /// <summary>Returns the schema of a managed type.</summary>
    internal static IfcSchema Of(Type type)
    {
        string space = type.Namespace ?? string.Empty;
        return space.Contains(".Ifc2x3.", StringComparison.Ordinal) ? Of(IfcVersion.IFC2X3)
            : space.Contains(".Ifc4.", StringComparison.Ordinal) ? Of(IfcVersion.IFC4)
            : Of(IfcVersion.IFC4X3);
    }

    /// <summary>Returns the class of a managed entity type.</summary>
    internal static IfcClass ClassOf(Type type) =>
        ClassesByType.GetOrAdd(type, static one => Of(one).FindClass(Of(one).Strip(one.Name))!);

    /// <summary>Finds an entity by its name in the schema, in any case; <see langword="null"/> for no entity.</summary>
    internal IfcClass? FindClass(string name) => _byName.GetValueOrDefault(name);

    /// <summary>Finds an entity by its name, with or without the version suffix.</summary>
    internal IfcClass? FindClassOrType(string name) => FindClass(name) ?? FindClass(Strip(name));

    /// <summary>Creates an instance without attributes, by the default constructor.</summary>
    internal IfcEntityBase Create(IfcClass one)
    {
        Type type = _classTypes[one.Number] ??= TypeOf("Entities", one.Name);
        return (IfcEntityBase)Activator.CreateInstance(type)!;
    }

    /// <summary>Returns the name of a defined type or an enumeration in the spelling of the schema;
    /// <see langword="null"/> for neither.</summary>
    internal string? TypeNameOf(string keyword) => _typeNames.GetValueOrDefault(keyword);

    /// <summary>Returns the managed type of a defined, select or enumeration type.</summary>
    internal Type TypeOf(string name) => _types.GetOrAdd(name, one => TypeOf("Types", one));

    /// <summary>Returns the items of an enumeration in order; the first has the value 1.</summary>
    internal string[] ItemsOf(string enumeration) => Table.Enumerations[enumeration].Members;

    /// <summary>Returns whether a select type admits a type directly, through another select, or through a
    /// supertype.</summary>
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

    /// <summary>Removes the version suffix from the name of a managed type.</summary>
    internal string Strip(string typeName) => typeName.EndsWith(_suffix, StringComparison.OrdinalIgnoreCase)
        ? typeName[..^_suffix.Length]
        : typeName;

    private Type TypeOf(string kind, string name)
    {
        string folder = Version == IfcVersion.IFC2X3 ? "Ifc2x3" : Version == IfcVersion.IFC4 ? "Ifc4" : "Ifc4x3";
        return _assembly.GetType($"{Root}{folder}.{kind}.{name}{_suffix}", true)!;
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

    // Depth first, so that the numbers of subtypes directly follow that of their supertype.
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
