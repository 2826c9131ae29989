#pragma once

#include <libsecret/secret.h>

#include <memory>

namespace tavi {

struct GlibFree {
    void operator()(GError* error) const { g_error_free(error); }
    void operator()(GHashTable* table) const { g_hash_table_unref(table); }
    void operator()(GVariant* variant) const { g_variant_unref(variant); }
    void operator()(GMainContext* context) const { g_main_context_unref(context); }
    void operator()(SecretValue* value) const { secret_value_unref(value); }
    /// A list with a reference to each object in it.
    void operator()(GList* objects) const { g_list_free_full(objects, g_object_unref); }
    void operator()(GCancellable* object) const { g_object_unref(object); }
    void operator()(GDBusConnection* object) const { g_object_unref(object); }
    void operator()(SecretService* object) const { g_object_unref(object); }
};

template <class T>
using GlibHandle = std::unique_ptr<T, GlibFree>;

}  // namespace tavi
