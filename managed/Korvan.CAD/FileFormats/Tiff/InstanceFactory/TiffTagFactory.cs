using System;
using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Tiff.Enums;
using Korvan.CAD.FileFormats.Tiff.TiffTagTypes;

namespace Korvan.CAD.FileFormats.Tiff.InstanceFactory;

/// <summary>Creates tags of any type.</summary>
public static class TiffTagFactory
{
    private static readonly Dictionary<TiffDataTypes, ITiffTagCreator> Creators = new();

    static TiffTagFactory()
    {
        Add(TiffDataTypes.Byte, static id => new TiffByteType(id));
        Add(TiffDataTypes.Ascii, static id => new TiffASCIIType(id));
        Add(TiffDataTypes.Short, static id => new TiffShortType(id));
        Add(TiffDataTypes.Long, static id => new TiffLongType(id));
        Add(TiffDataTypes.Rational, static id => new TiffRationalType(id));
        Add(TiffDataTypes.SByte, static id => new TiffSByteType(id));
        Add(TiffDataTypes.Undefined, static id => new TiffUndefinedType(id));
        Add(TiffDataTypes.SShort, static id => new TiffSShortType(id));
        Add(TiffDataTypes.SLong, static id => new TiffSLongType(id));
        Add(TiffDataTypes.SRational, static id => new TiffSRationalType(id));
        Add(TiffDataTypes.Float, static id => new TiffFloatType(id));
        Add(TiffDataTypes.Double, static id => new TiffDoubleType(id));
        Add(TiffDataTypes.Ifd, static id => new TiffIfdType(id));
    }

    /// <summary>Returns the creator of tags of a type.</summary>
    /// <param name="tagType">The type.</param>
    /// <returns>The creator.</returns>
    /// <exception cref="TiffImageException">There is no such type.</exception>
    public static ITiffTagCreator GetCreator(TiffDataTypes tagType)
    {
        return Creators.TryGetValue(tagType, out ITiffTagCreator? creator)
            ? creator
            : throw new TiffImageException($"There is no tag type {(int)tagType}; types are numbered 1 to 13.");
    }

    /// <summary>Creates a tag without values.</summary>
    /// <param name="tagId">The tag number, 0 to 65535.</param>
    /// <param name="tagType">The type of its values.</param>
    /// <returns>The tag.</returns>
    /// <exception cref="TiffImageException">There is no such type.</exception>
    public static TiffDataType CreateTag(int tagId, TiffDataTypes tagType) => GetCreator(tagType).CreateTag(tagId);

    internal static bool Knows(int type) => Creators.ContainsKey((TiffDataTypes)type);

    private static void Add(TiffDataTypes type, Func<int, TiffDataType> create) =>
        Creators.Add(type, new Creator(type, create));

    private sealed class Creator(TiffDataTypes type, Func<int, TiffDataType> create) : ITiffTagCreator
    {
        public TiffDataTypes TagType { get; } = type;

        public TiffDataType CreateTag(int tagId) => create(tagId);
    }
}
