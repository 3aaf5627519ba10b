#include <algorithm>
#include <array>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>
#include <boost/beast/core.hpp>
#include <boost/beast/http.hpp>
#include <boost/beast/websocket.hpp>
#include <chrono>
#include <deque>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <optional>
#include <thread>

#include "host/flightdeck/deck.h"
#include "host/flightdeck/picture_stream.h"

// The web server: one thread, asynchronous. It serves the page's folder and one WebSocket at /socket.

namespace host {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
namespace websocket = beast::websocket;
using asio::ip::tcp;
using nlohmann::json;

constexpr std::size_t kMaxMessage = 16 * 1024;
constexpr std::size_t kMaxWatched = 2000;
constexpr auto kPicturePeriod = std::chrono::milliseconds(55);
constexpr auto kBeat = std::chrono::milliseconds(500);

constexpr std::array<std::string_view, 10> kScreens = {"capt_outb", "capt_inb", "fo_inb", "fo_outb", "lower",
                                                       "hud",       "stby",     "efb_l",  "efb_r",   "debug"};

struct ContentType {
    std::string_view extension, type;
};
constexpr ContentType kContentTypes[] = {{".html", "text/html; charset=utf-8"},
                                         {".css", "text/css"},
                                         {".js", "text/javascript"},
                                         {".svg", "image/svg+xml"},
                                         {".png", "image/png"},
                                         {".ttf", "font/ttf"},
                                         {".otf", "font/otf"}};

std::string_view TypeOf(const std::filesystem::path& file) {
    for (const ContentType& row : kContentTypes)
        if (file.extension() == row.extension) return row.type;
    return "application/octet-stream";
}

// The value of a name in a target's query; empty when it isn't there.
std::string QueryValue(std::string_view target, std::string_view name) {
    const std::size_t question = target.find('?');
    if (question == std::string_view::npos) return {};
    std::string_view query = target.substr(question + 1);
    while (!query.empty()) {
        const std::string_view pair = query.substr(0, query.find('&'));
        query.remove_prefix(std::min(query.size(), pair.size() + 1));
        if (pair.starts_with(name) && pair.substr(name.size()).starts_with('='))
            return std::string(pair.substr(name.size() + 1));
    }
    return {};
}

// Takes as long for every wrong token of the right length.
bool SameToken(std::string_view given, std::string_view wanted) {
    if (given.size() != wanted.size()) return false;
    unsigned difference = 0;
    for (std::size_t i = 0; i < given.size(); ++i) difference |= static_cast<unsigned>(given[i] ^ wanted[i]);
    return difference == 0;
}

}  // namespace

class Browser;

struct FlightDeck::Network {
    DeckSettings settings;
    PictureSource pictures = nullptr;
    asio::io_context io{1};
    tcp::acceptor acceptor{io};
    std::thread thread;
    std::vector<std::weak_ptr<Browser>> browsers;  // network thread only
    std::map<std::string, std::string> values;     // network thread only: last published
    std::string greeting;                          // network thread only

    std::mutex lock;  // over what both threads touch
    std::vector<DeckCommand> commands;
    std::set<std::string> watched;

    void Accept();
    void Publish(const std::map<std::string, std::string>& changed);
    void RenewWatched();
    bool MayConnect(const http::request<http::string_body>& request) const;
};

// One WebSocket. At most one write is under way; what a slow browser misses is not kept for it.
class Browser : public std::enable_shared_from_this<Browser> {
  public:
    Browser(tcp::socket&& socket, FlightDeck::Network& network)
        : socket_(std::move(socket)), network_(network), timer_(network.io) {}

    void Run(http::request<http::string_body> request) {
        socket_.set_option(websocket::stream_base::timeout::suggested(beast::role_type::server));
        websocket::permessage_deflate deflate;
        deflate.server_enable = true;
        socket_.set_option(deflate);
        socket_.read_message_max(kMaxMessage);
        socket_.async_accept(request, [self = shared_from_this()](beast::error_code error) {
            if (error) return;
            self->open_ = true;
            self->pending_text_.push_back(self->network_.greeting);
            for (const auto& [name, value] : self->network_.values)
                if (self->watched_.contains(name)) self->changed_[name] = value;
            self->Read();
            self->Tick();
        });
    }

    const std::set<std::string>& watched() const { return watched_; }

    void TakeValues(const std::map<std::string, std::string>& changed) {
        for (const auto& [name, value] : changed)
            if (watched_.contains(name)) changed_[name] = value;
        Write();
    }

  private:
    void Read() {
        socket_.async_read(buffer_, [self = shared_from_this()](beast::error_code error, std::size_t) {
            if (error) return self->Leave();
            const std::string text = beast::buffers_to_string(self->buffer_.data());
            self->buffer_.consume(self->buffer_.size());
            if (const std::string reason = self->Take(text); !reason.empty()) return self->Close(reason);
            self->Read();
        });
    }

    // Acts on one message; the reason for which this browser is closed, or empty.
    std::string Take(const std::string& text) {
        if (!socket_.got_text()) return "binary messages are not understood";
        const json message = json::parse(text, nullptr, false);
        if (!message.is_object() || !message.contains("type") || !message["type"].is_string())
            return "not a message: an object with a type";
        const std::string type = message["type"];
        if (type == "screens") return TakeNames(message, screens_wanted_, kScreens.size(), true);
        if (type == "watch") {
            std::string reason = TakeNames(message, watched_, kMaxWatched, false);
            if (!reason.empty()) return reason;
            network_.RenewWatched();
            for (const auto& [name, value] : network_.values)
                if (watched_.contains(name)) changed_[name] = value;
            Write();
            return {};
        }
        DeckCommand command{};
        if (const std::string reason = ParseCommand(message, type, command); !reason.empty()) return reason;
        const std::lock_guard guard(network_.lock);
        if (network_.commands.size() < 10000) network_.commands.push_back(std::move(command));
        return {};
    }

    static std::string ParseCommand(const json& message, const std::string& type, DeckCommand& command) {
        const auto text = [&](const char* key, std::string& to) {
            const bool there = message.contains(key) && message[key].is_string();
            if (there) to = message[key];
            return there && to.size() <= 200;
        };
        const auto number = [&](const char* key, double& to) {
            const bool there = message.contains(key) && message[key].is_number();
            if (there) to = message[key];
            return there && std::abs(to) < 1e12;
        };
        if (type == "lvar") {
            command.kind = DeckCommand::kNamedVariable;
            return text("name", command.name) && number("value", command.value) ? "" : "lvar: name and value";
        }
        if (type == "set") {
            command.kind = DeckCommand::kStateVariable;
            return text("name", command.name) && text("text", command.text) ? "" : "set: name and text";
        }
        if (type == "mouse") {
            command.kind = DeckCommand::kMouse;
            std::string button;
            const bool whole = text("gauge", command.name) && number("x", command.x) &&
                               number("y", command.y) && text("button", button);
            command.right = button == "right";
            return whole && (command.right || button == "left") ? "" : "mouse: gauge, x, y and button";
        }
        if (type == "event") {
            command.kind = DeckCommand::kKeyEvent;
            return number("event", command.value) ? "" : "event: event";
        }
        if (type == "pause" || type == "rate") {
            command.kind = type == "pause" ? DeckCommand::kPause : DeckCommand::kRate;
            return number("value", command.value) ? "" : type + ": value";
        }
        if (type == "keys") {
            command.kind = DeckCommand::kText;
            return text("side", command.name) && text("text", command.text) ? "" : "keys: side and text";
        }
        return "unknown message type";
    }

    std::string TakeNames(const json& message, std::set<std::string>& to, std::size_t most, bool screens) {
        if (!message.contains("names") || !message["names"].is_array() || message["names"].size() > most)
            return "names: an array, not too long";
        std::set<std::string> names;
        for (const json& name : message["names"]) {
            if (!name.is_string()) return "names: texts";
            const std::string text = name;
            if (text.size() > 200) return "names: too long";
            if (screens && std::find(kScreens.begin(), kScreens.end(), text) == kScreens.end())
                return "no such screen";
            names.insert(text);
        }
        to = std::move(names);
        return {};
    }

    void Tick() {
        timer_.expires_after(kPicturePeriod);
        timer_.async_wait([self = shared_from_this()](beast::error_code error) {
            if (error || !self->open_) return;
            self->Write();
            self->Tick();
        });
    }

    // Sends the next message, if none is under way: first texts, then values, then pictures, else a sign of
    // life.
    void Write() {
        if (!open_ || writing_) return;
        bool binary = false;
        if (!pending_text_.empty()) {
            outgoing_ = std::move(pending_text_.front());
            pending_text_.pop_front();
        } else if (!changed_.empty()) {
            outgoing_ = json{{"type", "values"}, {"values", changed_}}.dump(-1, ' ', false,
                                                                            json::error_handler_t::replace);
            changed_.clear();
        } else {
            outgoing_ = NextPictures();
            binary = !outgoing_.empty();
            if (!binary) {
                if (std::chrono::steady_clock::now() - last_write_ < kBeat) return;
                outgoing_ = R"({"type":"beat"})";
            }
        }
        if (outgoing_.empty()) return;
        writing_ = true;
        last_write_ = std::chrono::steady_clock::now();
        socket_.binary(binary);
        socket_.async_write(asio::buffer(outgoing_),
                            [self = shared_from_this()](beast::error_code error, std::size_t) {
                                self->writing_ = false;
                                if (error) return self->Leave();
                                if (!self->pending_text_.empty() || !self->changed_.empty()) self->Write();
                            });
    }

    // Every wanted screen whose picture has changed: a byte with the screen's place, 4 bytes of length, the
    // message.
    std::string NextPictures() {
        std::string all, bytes;
        for (std::size_t i = 0; i < kScreens.size(); ++i) {
            const std::string screen(kScreens[i]);
            if (!screens_wanted_.contains(screen)) {
                streams_[i] = {};
                continue;
            }
            bytes.clear();
            std::uint64_t number = 0;
            if (network_.pictures == nullptr || !network_.pictures(screen, streams_[i].number, bytes, number))
                continue;
            const std::string message = NextPictureMessage(streams_[i], bytes, number);
            if (message.empty()) continue;
            all += static_cast<char>(i);
            for (int shift = 0; shift < 32; shift += 8)
                all += static_cast<char>(message.size() >> shift & 255);
            all += message;
        }
        return all;
    }

    void Close(const std::string& reason) {
        websocket::close_reason close(websocket::close_code::policy_error, reason.substr(0, 120));
        socket_.async_close(close, [self = shared_from_this()](beast::error_code) { self->Leave(); });
    }

    void Leave() {
        open_ = false;
        timer_.cancel();
        watched_.clear();
        network_.RenewWatched();
    }

    websocket::stream<beast::tcp_stream> socket_;
    FlightDeck::Network& network_;
    asio::steady_timer timer_;
    beast::flat_buffer buffer_;
    bool open_ = false, writing_ = false;
    std::string outgoing_;
    std::deque<std::string> pending_text_;
    std::map<std::string, std::string> changed_;
    std::set<std::string> watched_, screens_wanted_;
    std::array<PictureStream, kScreens.size()> streams_;
    std::chrono::steady_clock::time_point last_write_{};
};

namespace {

// One HTTP connection, until it is closed or becomes a WebSocket.
class Connection : public std::enable_shared_from_this<Connection> {
  public:
    Connection(tcp::socket&& socket, FlightDeck::Network& network)
        : stream_(std::move(socket)), network_(network) {}

    void Read() {
        parser_.emplace();
        parser_->body_limit(1024);
        parser_->header_limit(8192);
        stream_.expires_after(std::chrono::seconds(30));
        http::async_read(stream_, buffer_, *parser_,
                         [self = shared_from_this()](beast::error_code error, std::size_t) {
                             if (!error) self->Answer(self->parser_->release());
                         });
    }

  private:
    void Answer(http::request<http::string_body> request) {
        const std::string_view target(request.target().data(), request.target().size());
        if (!network_.MayConnect(request))
            return Send(request, http::status::forbidden, "text/plain", "403\n");
        if (websocket::is_upgrade(request)) {
            if (target.substr(0, target.find('?')) != "/socket")
                return Send(request, http::status::not_found, "text/plain", "404\n");
            stream_.expires_never();
            const auto browser = std::make_shared<Browser>(stream_.release_socket(), network_);
            network_.browsers.push_back(browser);
            return browser->Run(std::move(request));
        }
        if (request.method() != http::verb::get && request.method() != http::verb::head)
            return Send(request, http::status::method_not_allowed, "text/plain", "405\n");
        SendFile(request, target.substr(0, target.find('?')));
    }

    // A file of the page's folder, by one plain name; every screen of its own is the one page.
    void SendFile(const http::request<http::string_body>& request, std::string_view path) {
        std::string name(path.substr(std::min<std::size_t>(1, path.size())));
        if (name.empty() || name.starts_with("screen/")) name = "index.html";
        const bool plain =
            name.find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-.") ==
                std::string::npos &&
            !name.starts_with('.');
        const std::filesystem::path file = std::filesystem::path(network_.settings.page_folder) / name;
        std::error_code failed;
        if (!plain || !std::filesystem::is_regular_file(file, failed))
            return Send(request, http::status::not_found, "text/plain", "404\n");
        std::ifstream in(file, std::ios::binary);
        Send(request, http::status::ok, TypeOf(file), {std::istreambuf_iterator<char>(in), {}});
    }

    void Send(const http::request<http::string_body>& request, http::status status, std::string_view type,
              std::string body) {
        auto response = std::make_shared<http::response<http::string_body>>(status, request.version());
        response->set(http::field::content_type, beast::string_view(type.data(), type.size()));
        response->set(http::field::cache_control, "no-cache");
        response->set("X-Content-Type-Options", "nosniff");
        // The token came with the address of the page; what the page loads comes with a cookie.
        const std::string token = QueryValue({request.target().data(), request.target().size()}, "token");
        if (!token.empty() && status == http::status::ok)
            response->set(http::field::set_cookie, "token=" + token + "; HttpOnly; SameSite=Strict; Path=/");
        response->keep_alive(request.keep_alive());
        response->body() = std::move(body);
        response->prepare_payload();
        if (request.method() == http::verb::head) response->body().clear();
        http::async_write(stream_, *response,
                          [self = shared_from_this(), response](beast::error_code error, std::size_t) {
                              if (!error && response->keep_alive()) return self->Read();
                              beast::error_code ignored;
                              self->stream_.socket().shutdown(tcp::socket::shutdown_send, ignored);
                          });
    }

    beast::tcp_stream stream_;
    FlightDeck::Network& network_;
    beast::flat_buffer buffer_;
    std::optional<http::request_parser<http::string_body>> parser_;
};

}  // namespace

void FlightDeck::Network::Accept() {
    acceptor.async_accept([this](beast::error_code error, tcp::socket socket) {
        if (error == asio::error::operation_aborted) return;
        if (!error) {
            beast::error_code ignored;
            socket.set_option(tcp::no_delay(true), ignored);
            std::make_shared<Connection>(std::move(socket), *this)->Read();
        }
        Accept();
    });
}

// A page of another site may not reach the deck; on a wide address whoever comes must know the token.
bool FlightDeck::Network::MayConnect(const http::request<http::string_body>& request) const {
    const auto field = [&](http::field name) {
        const auto value = request[name];
        return std::string(value.data(), value.size());
    };
    const std::string origin = field(http::field::origin);
    if (!origin.empty() && origin != "http://" + field(http::field::host)) return false;
    if (settings.token.empty()) return true;
    const std::string_view target(request.target().data(), request.target().size());
    const std::string cookie = field(http::field::cookie);
    const std::size_t at = cookie.find("token=");
    const std::string kept =
        at == std::string::npos ? "" : cookie.substr(at + 6, cookie.find(';', at) - at - 6);
    return SameToken(QueryValue(target, "token"), settings.token) || SameToken(kept, settings.token);
}

void FlightDeck::Network::RenewWatched() {
    std::set<std::string> names;
    std::erase_if(browsers, [](const std::weak_ptr<Browser>& browser) { return browser.expired(); });
    for (const auto& weak : browsers)
        if (const auto browser = weak.lock())
            names.insert(browser->watched().begin(), browser->watched().end());
    const std::lock_guard guard(lock);
    watched = std::move(names);
}

void FlightDeck::Network::Publish(const std::map<std::string, std::string>& changed) {
    for (const auto& [name, value] : changed) values[name] = value;
    for (const auto& weak : browsers)
        if (const auto browser = weak.lock()) browser->TakeValues(changed);
}

FlightDeck::FlightDeck(DeckSettings settings, PictureSource pictures)
    : network_(std::make_unique<Network>()) {
    network_->settings = std::move(settings);
    network_->pictures = pictures;
}

FlightDeck::~FlightDeck() {
    Stop();
}

bool FlightDeck::Start(std::string& error) {
    Network& network = *network_;
    beast::error_code failed;
    const auto address = asio::ip::make_address(network.settings.address, failed);
    if (failed) {
        error = network.settings.address + " is no address";
        return false;
    }
    if (!address.is_loopback() && network.settings.token.empty()) {
        error = "an address wider than loopback needs a token";
        return false;
    }
    const tcp::endpoint endpoint(address, static_cast<unsigned short>(network.settings.port));
    network.acceptor.open(endpoint.protocol(), failed);
    if (!failed) network.acceptor.set_option(asio::socket_base::reuse_address(true), failed);
    if (!failed) network.acceptor.bind(endpoint, failed);
    if (!failed) network.acceptor.listen(asio::socket_base::max_listen_connections, failed);
    if (failed) {
        error =
            network.settings.address + ":" + std::to_string(network.settings.port) + ": " + failed.message();
        return false;
    }
    network.settings.port = network.acceptor.local_endpoint().port();
    network.Accept();
    network.thread = std::thread([&network] { network.io.run(); });
    return true;
}

void FlightDeck::Stop() {
    if (!network_->thread.joinable()) return;
    network_->io.stop();
    network_->thread.join();
}

int FlightDeck::port() const {
    return network_->settings.port;
}

std::vector<DeckCommand> FlightDeck::TakeCommands() {
    const std::lock_guard guard(network_->lock);
    return std::exchange(network_->commands, {});
}

std::set<std::string> FlightDeck::WatchedNames() {
    const std::lock_guard guard(network_->lock);
    return network_->watched;
}

void FlightDeck::PublishValues(const std::map<std::string, std::string>& values) {
    if (values.empty()) return;
    asio::post(network_->io, [network = network_.get(), values] {
        std::map<std::string, std::string> changed;
        for (const auto& [name, value] : values) {
            const auto known = network->values.find(name);
            if (known == network->values.end() || known->second != value) changed.emplace(name, value);
        }
        if (!changed.empty()) network->Publish(changed);
    });
}

void FlightDeck::SetGreeting(std::string text) {
    asio::post(network_->io,
               [network = network_.get(), text = std::move(text)] { network->greeting = text; });
}

}  // namespace host
