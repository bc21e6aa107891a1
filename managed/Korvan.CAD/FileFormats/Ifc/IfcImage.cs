using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Binding;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Ifc.Header;
using Korvan.CAD.FileFormats.Ifc.Model;
using Korvan.CAD.FileFormats.Ifc.Schema;
using Korvan.CAD.Formats;
using Korvan.CAD.ImageOptions;

namespace Korvan.CAD.FileFormats.Ifc;

/// <summary>A building model (IFC, ISO 16739-1). Instances are created from the file on first access, each once. Saving
/// writes changed, added and removed instances; everything else is copied byte by byte.</summary>
public sealed class IfcImage : Image, IBuildingContent
{
    private const string NoGeometry =
        "The geometry of a building model is not evaluated yet: it has no extents and is not drawn.";

    private readonly IfcHeader _header;
    private readonly IfcFileForm _form;

    internal IfcImage(IfcContent content)
    {
        (Model, _header, _form) = content;
    }

    /// <summary>Gets the header of the file.</summary>
    public IfcHeader Header
    {
        get
        {
            VerifyNotDisposed();
            return _header;
        }
    }

    /// <summary>Gets the schema.</summary>
    public IfcVersion Version => Model.Schema.Version;

    /// <summary>Gets all instances: those of the file in file order, then the added ones. The list is a
    /// snapshot.</summary>
    public IReadOnlyList<IIfcEntity> Entities
    {
        get
        {
            VerifyNotDisposed();
            return Model.Entities;
        }
    }

    /// <summary>Gets the extent along X.</summary>
    /// <exception cref="IfcImageException">Always: the geometry is not evaluated.</exception>
    public override int Width => throw new IfcImageException(NoGeometry);

    /// <summary>Gets the extent along Y.</summary>
    /// <exception cref="IfcImageException">Always: the geometry is not evaluated.</exception>
    public override int Height => throw new IfcImageException(NoGeometry);

    /// <summary>Gets the extent along Z.</summary>
    /// <exception cref="IfcImageException">Always: the geometry is not evaluated.</exception>
    public override int Depth => throw new IfcImageException(NoGeometry);

    /// <summary>Gets the unit of length of the project.</summary>
    public override UnitType UnitType => IfcUnits.LengthUnit(Model) is var unit && unit == UnitType.Unitless
        ? UnitlessDefaultUnitType
        : unit;

    /// <inheritdoc/>
    public override bool IsCached => true;

    internal IfcModel Model { get; }

    /// <inheritdoc/>
    public override void CacheData() => VerifyNotDisposed();

    /// <summary>Returns an instance by its identifier.</summary>
    /// <param name="instanceId">The number after the # sign.</param>
    /// <returns>The instance, or <see langword="null"/>.</returns>
    public IIfcEntity? GetEntity(long instanceId)
    {
        VerifyNotDisposed();
        return Model.Find(instanceId);
    }

    /// <summary>Returns an instance by its GlobalId. The first searches scan the file; then an index is
    /// built.</summary>
    /// <param name="globalId">The identifier, 22 characters.</param>
    /// <returns>The instance, or <see langword="null"/>.</returns>
    public IIfcEntity? GetEntityByGlobalId(string globalId)
    {
        VerifyNotDisposed();
        Verify.NotNull(globalId);
        return Model.FindGlobalId(globalId);
    }

    /// <summary>Returns the instances of an entity and of its subtypes, in file order.</summary>
    /// <param name="entityName">The name in the schema, in any case, with or without the version suffix.</param>
    /// <returns>The instances.</returns>
    /// <exception cref="IfcImageException">The schema has no such entity.</exception>
    public IReadOnlyList<IIfcEntity> GetEntitiesOfType(string entityName) => GetEntitiesOfType(entityName, false);

    /// <summary>Returns the instances of an entity, in file order.</summary>
    /// <param name="entityName">The name in the schema, in any case, with or without the version suffix.</param>
    /// <param name="isExact">Whether instances of subtypes are left out.</param>
    /// <returns>The instances.</returns>
    /// <exception cref="IfcImageException">The schema has no such entity.</exception>
    public IReadOnlyList<IIfcEntity> GetEntitiesOfType(string entityName, bool isExact)
    {
        VerifyNotDisposed();
        Verify.NotNull(entityName);
        IfcClass found = Model.Schema.FindClassOrType(entityName)
            ?? throw new IfcImageException($"The schema {Model.Schema.Table.Name} has no entity '{entityName}'.");
        return Model.OfClass(found, isExact);
    }

    /// <summary>Adds an instance that was created in memory, and the instances it refers to that belong to no model.
    /// Their identifiers follow the largest one.</summary>
    /// <param name="entity">The instance.</param>
    /// <exception cref="IfcImageException">It belongs to a model, or is of another schema version.</exception>
    public void AddEntity(IIfcEntity entity)
    {
        VerifyNotDisposed();
        IfcEntityBase one = Own(entity);
        if (one.Model is not null)
        {
            throw new IfcImageException($"{one.DescribePlace()}it belongs to a model already.");
        }

        Model.Add(one);
    }

    /// <summary>Removes an instance to which no other refers.</summary>
    /// <param name="entity">The instance.</param>
    /// <exception cref="IfcImageException">It does not belong to this model, or others refer to it.</exception>
    public void RemoveEntity(IIfcEntity entity)
    {
        VerifyNotDisposed();
        IfcEntityBase one = Own(entity);
        if (one.Model != Model)
        {
            throw new IfcImageException($"{one.DescribePlace()}it does not belong to this model.");
        }

        Model.Remove(one);
    }

    /// <summary>Returns the strings that the model displays: those of its text literals (IfcTextLiteral).</summary>
    /// <returns>The strings.</returns>
    public override string[] GetStrings() =>
    [
        .. GetEntitiesOfType("IfcTextLiteral").Select(one => one.GetAttribute("Literal")).OfType<string>(),
    ];

    /// <inheritdoc/>
    internal override string Content => $"{Version} with {Model.Entities.Count} instances";

    /// <inheritdoc/>
    private protected override FileFormat NativeFormat =>
        Version == IfcVersion.IFC2X3 ? FileFormat.IFC2X3 : FileFormat.IFC4;

    /// <inheritdoc/>
    IfcModel IBuildingContent.Model => Model;

    /// <inheritdoc/>
    IfcHeader IBuildingContent.Header => Header;

    /// <inheritdoc/>
    IfcFileForm IBuildingContent.Form => _form;

    private static IfcEntityBase Own(IIfcEntity entity)
    {
        Verify.NotNull(entity);
        return entity as IfcEntityBase ?? throw new IfcImageException($"A {entity.GetType().Name} is no entity.");
    }
}
