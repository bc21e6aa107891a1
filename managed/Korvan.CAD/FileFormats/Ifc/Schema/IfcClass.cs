using System;
using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Ifc.Schema;

/// <summary>An entity of a schema. Classes are numbered so that subtypes directly follow their supertype.</summary>
internal sealed class IfcClass
{
    private readonly Dictionary<string, int> _attributeNumbers = new(StringComparer.OrdinalIgnoreCase);
    private readonly Dictionary<string, int> _inverseNumbers = new(StringComparer.OrdinalIgnoreCase);

    internal IfcClass(IfcSchema schema, SchemaEntity entity, IfcClass? parent, int number)
    {
        Schema = schema;
        Name = entity.Name;
        Keyword = entity.Name.ToUpperInvariant();
        IsAbstract = entity.IsAbstract;
        Parent = parent;
        Number = number;
        Last = number;
        Attributes = AllAttributes(schema.Table, entity, parent);
        for (int i = 0; i < Attributes.Length; i++)
        {
            _attributeNumbers[Attributes[i].Name] = i;
        }
    }

    internal IfcSchema Schema { get; }

    /// <summary>Gets the name in the spelling of the schema.</summary>
    internal string Name { get; }

    /// <summary>Gets the name in the spelling of files: upper case.</summary>
    internal string Keyword { get; }

    internal bool IsAbstract { get; }

    internal IfcClass? Parent { get; }

    /// <summary>Gets the number among the classes of the schema.</summary>
    internal int Number { get; }

    /// <summary>Gets the number of the last subtype; its own number if there is none.</summary>
    internal int Last { get; set; }

    /// <summary>Gets all attributes in the order of a record.</summary>
    internal IfcAttributeInfo[] Attributes { get; }

    /// <summary>Gets all inverse attributes, inherited ones first.</summary>
    internal IfcInverseInfo[] Inverses { get; private set; } = [];

    internal bool IsA(IfcClass other) => Number >= other.Number && Number <= other.Last;

    /// <summary>Returns the index of an attribute, or -1.</summary>
    internal int AttributeNumber(string name) => _attributeNumbers.GetValueOrDefault(name, -1);

    /// <summary>Returns the index of an inverse attribute, or -1.</summary>
    internal int InverseNumber(string name) => _inverseNumbers.GetValueOrDefault(name, -1);

    /// <summary>Resolves the inverse attributes; all classes have to exist, and supertypes have to be linked
    /// before.</summary>
    internal void Link(SchemaEntity entity)
    {
        IfcInverseInfo[] inherited = Parent?.Inverses ?? [];
        Inverses = new IfcInverseInfo[inherited.Length + entity.Inverses.Count];
        inherited.CopyTo(Inverses, 0);
        for (int i = 0; i < entity.Inverses.Count; i++)
        {
            SchemaInverse one = entity.Inverses[i];
            IfcClass referrer = Schema.FindClass(one.Entity)!;
            int attribute = referrer.AttributeNumber(one.Attribute);
            bool isSingle = one.Form.Element is null;
            Inverses[inherited.Length + i] = new IfcInverseInfo(one.Name, referrer, attribute, isSingle);
        }

        for (int i = 0; i < Inverses.Length; i++)
        {
            _inverseNumbers[Inverses[i].Name] = i;
        }
    }

    private static IfcAttributeInfo[] AllAttributes(SchemaTable table, SchemaEntity entity, IfcClass? parent)
    {
        List<IfcAttributeInfo> all = [.. parent?.Attributes ?? []];
        foreach (string derived in entity.Derived)
        {
            int at = all.FindIndex(one => one.Name == derived);
            if (at >= 0)
            {
                all[at] = all[at] with { IsDerived = true };
            }
        }

        foreach (SchemaAttribute one in entity.Attributes)
        {
            SchemaShape shape = table.ShapeOf(one.Form);
            all.Add(new IfcAttributeInfo(one.Name, entity.Name, one.IsOptional, false, one.Form, shape));
        }

        return [.. all];
    }
}
