using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>An encoded image does not fit its size limit with any acceptable quality.</summary>
public class RdOptimizationError : FrameworkException
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    public RdOptimizationError(string message)
        : base(message)
    {
    }

    /// <summary>Creates the exception with a message and its cause.</summary>
    /// <param name="message">The message: what failed, where, and how to correct it.</param>
    /// <param name="innerException">The exception that caused this one.</param>
    public RdOptimizationError(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
