namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>A value of a named type of the schema: an entity or a defined type.</summary>
public interface IIfcType
{
    /// <summary>Gets the name in the schema, such as IfcLabel or IfcWall.</summary>
    string TypeName { get; }

    /// <summary>Gets the value without its type: a string, a number, a Boolean, bytes or a list; <see langword="null"/>
    /// for an unknown logical value, the entity itself for an entity.</summary>
    object? PlainValue { get; }
}
