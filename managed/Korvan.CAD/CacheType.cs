using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Where the pixels of images are kept.</summary>
[PythonEnum(EnumKind.Integer)]
public enum CacheType
{
    /// <summary>In memory up to the limit of <see cref="Cache.MaxMemoryForCache"/>, beyond it on disk.</summary>
    Auto = 0,

    /// <summary>In files of the cache folder.</summary>
    CacheOnDiskOnly = 1,

    /// <summary>In memory; what goes beyond the limit is refused.</summary>
    CacheInMemoryOnly = 2,
}
