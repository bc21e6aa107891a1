using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Ifc.Schema;

/// <summary>An attribute in the declaration of an entity.</summary>
internal sealed class SchemaAttribute
{
    internal SchemaAttribute(string name, bool isOptional, SchemaForm form)
    {
        Name = name;
        IsOptional = isOptional;
        Form = form;
    }

    internal string Name { get; }

    internal bool IsOptional { get; }

    internal SchemaForm Form { get; }
}

/// <summary>An inverse attribute: the instances of an entity whose attribute refers here.</summary>
internal sealed class SchemaInverse
{
    internal SchemaInverse(string entity, string attribute, string name, SchemaForm form)
    {
        Entity = entity;
        Attribute = attribute;
        Name = name;
        Form = form;
    }

    internal string Entity { get; }

    internal string Attribute { get; }

    internal string Name { get; }

    internal SchemaForm Form { get; }
}

/// <summary>The declaration of an entity, without what it inherits.</summary>
internal sealed class SchemaEntity
{
    internal SchemaEntity(string name, string? baseName, bool isAbstract)
    {
        Name = name;
        BaseName = baseName;
        IsAbstract = isAbstract;
    }

    internal string Name { get; }

    internal string? BaseName { get; }

    internal bool IsAbstract { get; }

    internal List<SchemaAttribute> Attributes { get; } = new List<SchemaAttribute>();

    /// <summary>Gets the names of inherited attributes that are derived here and not written.</summary>
    internal List<string> Derived { get; } = new List<string>();

    internal List<SchemaInverse> Inverses { get; } = new List<SchemaInverse>();
}

/// <summary>A defined type: a name for another type.</summary>
internal sealed class SchemaDefinedType
{
    internal SchemaDefinedType(string name, SchemaForm form)
    {
        Name = name;
        Form = form;
    }

    internal string Name { get; }

    internal SchemaForm Form { get; }
}

/// <summary>An enumeration with its items, or a select type with its members.</summary>
internal sealed class SchemaChoice
{
    internal SchemaChoice(string name, string[] members)
    {
        Name = name;
        Members = members;
    }

    internal string Name { get; }

    internal string[] Members { get; }
}
