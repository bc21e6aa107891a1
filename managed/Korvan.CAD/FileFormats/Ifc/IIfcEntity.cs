using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;

namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>An instance of any entity of the schema.</summary>
public interface IIfcEntity
{
    /// <summary>Gets the identifier of the instance in its file, the number after the # sign; 0 until it belongs to a
    /// model.</summary>
    long InstanceId { get; }

    /// <summary>Gets the name of the entity as the schema spells it, such as IfcWall.</summary>
    string EntityName { get; }

    /// <summary>Gets the names of the attributes in file order, inherited ones first.</summary>
    IReadOnlyList<string> AttributeNames { get; }

    /// <summary>Gets the names of the inverse attributes.</summary>
    IReadOnlyList<string> InverseNames { get; }

    /// <summary>Gets the instances of the model that refer to this one, in file order.</summary>
    IReadOnlyList<IIfcEntity> Referrers { get; }

    /// <summary>Returns whether the instance is of an entity or of one that is derived from it.</summary>
    /// <param name="entityName">The name in the schema, in any case, with or without the version suffix.</param>
    bool IsA(string entityName);

    /// <summary>Returns the value of an attribute: a string, a number, a Boolean, bytes, an entity, a select value, a
    /// list, or <see langword="null"/>. An enumeration item is returned as its name.</summary>
    /// <param name="name">The name in the schema, in any case.</param>
    /// <exception cref="IfcImageException">There is no such attribute, or its value is not of its type.</exception>
    object? GetAttribute(string name);

    /// <summary>Returns the value of an attribute by its index.</summary>
    /// <param name="index">The zero-based index in file order.</param>
    /// <exception cref="IfcImageException">There is no such attribute, or its value is not of its type.</exception>
    object? GetAttribute(int index);

    /// <summary>Sets an attribute.</summary>
    /// <param name="name">The name in the schema, in any case.</param>
    /// <param name="value">A value of its type, or <see langword="null"/>. A list is copied.</param>
    /// <exception cref="IfcImageException">There is no such attribute, or the value is not of its type.</exception>
    void SetAttribute(string name, object? value);

    /// <summary>Sets an attribute by its index.</summary>
    /// <param name="index">The zero-based index in file order.</param>
    /// <param name="value">A value of its type, or <see langword="null"/>. A list is copied.</param>
    /// <exception cref="IfcImageException">There is no such attribute, or the value is not of its type.</exception>
    void SetAttribute(int index, object? value);

    /// <summary>Returns the instances that refer to this one through the attribute that an inverse attribute inverts,
    /// in file order.</summary>
    /// <param name="name">The name in the schema, in any case.</param>
    /// <exception cref="IfcImageException">There is no such inverse attribute.</exception>
    IReadOnlyList<IIfcEntity> GetInverse(string name);
}
