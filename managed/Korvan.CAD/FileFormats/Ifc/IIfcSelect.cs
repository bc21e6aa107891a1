namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>A value of one of several types.</summary>
public interface IIfcSelect
{
    /// <summary>Gets the name of the type that was chosen, such as IfcLabel or IfcWall.</summary>
    string TypeName { get; }

    /// <summary>Gets the value without its type: a text, a number, a truth value, bytes, a list or an entity; of an
    /// enumeration the name of the item.</summary>
    object? Value { get; }

    /// <summary>Gets the entity that was chosen; nothing if it is a value of a defined type.</summary>
    IIfcEntity? Entity { get; }
}
